#include "services/WordProcessorSearch.h"

#include "records/SharedRecords.h"
#include "services/ErrorLog.h"
#include "services/RegistryStore.h"
#include "services/SystemProbes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace registry = platform::registry;

namespace {

constexpr char kRelease[] = "14.0";
constexpr char kPathValue[] = "Path";
constexpr char kProgramValue[] = "Program";

void deleteValue(const QString& key, const char* name) {
    registry::Key handle = 0;
    if (registry::openKey(Hive::LocalMachine, key.toStdString(), registry::kAllAccess, handle) != registry::kSuccess)
        return;
    registry::deleteValue(handle, name);
    registry::closeKey(handle);
}

std::optional<QString> findOnThisMachine(const QString& nameOrPath) {
    const QFileInfo file(nameOrPath);
    if (file.isAbsolute())
        return file.isFile() && file.isExecutable() ? std::optional(nameOrPath) : std::nullopt;
    const QString path = QStandardPaths::findExecutable(nameOrPath);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

QString firstLineOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readLine()).trimmed() : QString();
}

void tellUser(const QString& line) {
    QSaveFile file(sharedRecords().flags.strHomeFolder + QDir::separator() + "WordProcessor.txt");
    if (!file.open(QIODevice::WriteOnly) || file.write((line + '\n').toUtf8()) < 0 || !file.commit())
        WriteErrorLog("modProbes", "lookForWordProcessor", file.errorString());
}

} // namespace

FoundWordProcessor findWordProcessor(const WordProcessorSources& sources) {
    if (!sources.configuredProgram.isEmpty()) {
        if (const auto program = sources.findProgram(sources.configuredProgram))
            return {*program, "Word processor: " + *program + ", as named in wordprocessor.conf."};
        return {{}, "No word processor: " + sources.configuredProgram + ", named in wordprocessor.conf, is not there."};
    }
    for (const char* name : {"lowriter", "libreoffice", "soffice"})
        if (const auto program = sources.findProgram(name))
            return {*program, "Word processor: LibreOffice Writer, found as " + *program + "."};
    return {{},
            "No word processor: neither wordprocessor.conf nor the search path names one (looked for lowriter, "
            "libreoffice, soffice)."};
}

void registerWordProcessor(const FoundWordProcessor& found) {
    const QString key = wordProcessorKey(kRelease);
    if (found.program.isEmpty()) {
        deleteValue(key, kPathValue);
        deleteValue(key, kProgramValue);
        return;
    }
    CreateKey(Hive::LocalMachine, key);
    WriteKeyValue(Hive::LocalMachine, key, kPathValue, QFileInfo(found.program).absolutePath(), registry::kString);
    WriteKeyValue(Hive::LocalMachine, key, kProgramValue, found.program, registry::kString);
}

void lookForWordProcessor() {
#ifndef Q_OS_WIN
    const QString configuration =
        QString::fromStdString((registry::configurationFolder() / "wordprocessor.conf").string());
    const FoundWordProcessor found = findWordProcessor({firstLineOf(configuration), findOnThisMachine});
    registerWordProcessor(found);
    tellUser(found.reason);
#endif
}

QString wordProcessorProgram() {
    return ReadKeyValue(Hive::LocalMachine, wordProcessorKey(kRelease), kProgramValue).toString().remove(QChar(0));
}
