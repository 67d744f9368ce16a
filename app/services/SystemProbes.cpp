#include "services/SystemProbes.h"

#include "platform/VolumeInformation.h"
#include "records/SharedRecords.h"
#include "services/ErrorLog.h"
#include "services/RegistryStore.h"

#include <exception>

namespace {

constexpr char kRequirementMessage[] = "This application requires Microsoft Word 2000 or higher to run.\n"
                                       "Please install this software on another computer or upgrade your system.";

bool isInstalled(const QString& release) {
    return !ReadKeyValue(Hive::LocalMachine, wordProcessorKey(release), "Path").toString().isEmpty();
}

QString nameInLineOf95(std::uint32_t minor) {
    switch (minor) {
    case 0:
        return "95";
    case 10:
        return "98";
    case 90:
        return "ME";
    default:
        return {};
    }
}

QString nameInLineOfNt(std::uint32_t major, std::uint32_t minor) {
    if (major == 3)
        return "3.51";
    if (major == 4)
        return "4.0";
    if (major == 5 && minor == 0)
        return "2000";
    if (major == 5 && minor == 1)
        return "WinXP/NT Server";
    return {};
}

} // namespace

QString wordProcessorKey(const QString& release) {
    return "SOFTWARE\\Microsoft\\Office\\" + release + "\\Word\\InstallRoot";
}

QString GetOSVersion(const platform::SystemVersion& version) {
    switch (version.platformId) {
    case 1:
        return nameInLineOf95(version.minor);
    case 2:
        return nameInLineOfNt(version.major, version.minor);
    default:
        return "Failed";
    }
}

QString GetOSVersion() {
    try {
        return GetOSVersion(platform::systemVersion());
    } catch (const std::exception& error) {
        WriteErrorLog("modGetOS", "GetOSVersion", QString::fromUtf8(error.what()));
        return {};
    }
}

std::int16_t IsMSWordInstalled() {
    sharedRecords().flags.strWordRequirementMsg = kRequirementMessage;
    for (const char* release : {"9.0", "10.0", "11.0", "12.0", "14.0"})
        if (isInstalled(release))
            return 1;
    return 0;
}

std::int16_t CheckMSWord() {
    sharedRecords().flags.strWordRequirementMsg = kRequirementMessage;
    struct Release {
        const char* version;
        std::int16_t year;
    };
    for (const Release& release : {Release{"14.0", 2010}, Release{"12.0", 2007}, Release{"11.0", 2003}}) {
        try {
            if (isInstalled(release.version))
                return release.year;
        } catch (const std::exception& error) {
            WriteErrorLog("ModSplash", "CheckMSWord", QString::fromUtf8(error.what()));
        }
    }
    // Release 10.0 answers 2001, and so does a machine with 9.0 or with nothing: callers only ask whether it is at
    // least 2007.
    return 2001;
}

std::int32_t GetVolumeSerial(const QString& driveLetter) {
    return platform::volumeSerial((driveLetter.toUpper() + ":\\").toStdString()).value_or(0);
}
