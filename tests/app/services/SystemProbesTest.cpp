#include "services/SystemProbes.h"

#include "app/support/ScratchHome.h"
#include "services/RegistryStore.h"
#include "services/WordProcessorSearch.h"

#include <QFile>

namespace tavrelion::tests {
namespace {

class SystemProbes : public ScratchHome {
protected:
    static void install(const char* release) {
        CreateKey(Hive::LocalMachine, wordProcessorKey(release));
        WriteKeyValue(Hive::LocalMachine, wordProcessorKey(release), "Path", "/somewhere", platform::registry::kString);
    }
    /// A search that finds these programs.
    static WordProcessorSources machineWith(QStringList programs, const QString& configured = {}) {
        return {configured, [programs = std::move(programs)](const QString& name) -> std::optional<QString> {
                    for (const QString& program : programs)
                        if (program == name || program.endsWith('/' + name))
                            return program;
                    return std::nullopt;
                }};
    }
};

TEST_F(SystemProbes, NamesTheOldReleasesOfWindows) {
    struct Row {
        std::uint32_t platformId, major, minor;
        const char* expected;
    };
    const Row rows[] = {{1, 4, 0, "95"},    {1, 4, 10, "98"}, {1, 4, 90, "ME"},  {1, 4, 5, ""},
                        {2, 3, 51, "3.51"}, {2, 4, 0, "4.0"}, {2, 5, 0, "2000"}, {2, 5, 1, "WinXP/NT Server"},
                        {2, 5, 2, ""},      {2, 6, 1, ""},    {2, 10, 0, ""},    {0, 6, 1, "Failed"},
                        {3, 1, 0, "Failed"}};
    for (const Row& row : rows)
        EXPECT_EQ(GetOSVersion(platform::SystemVersion{row.platformId, row.major, row.minor}), row.expected)
            << row.platformId << ' ' << row.major << '.' << row.minor;
}

TEST_F(SystemProbes, TellTheWordProcessorAndItsYear) {
    struct Row {
        std::vector<const char*> releases;
        int isInstalled, year;
    };
    const Row rows[] = {{{}, 0, 2001},       {{"9.0"}, 1, 2001},          {{"10.0"}, 1, 2001},
                        {{"11.0"}, 1, 2003}, {{"12.0"}, 1, 2007},         {{"14.0"}, 1, 2010},
                        {{"15.0"}, 0, 2001}, {{"10.0", "14.0"}, 1, 2010}, {{"11.0", "12.0"}, 1, 2007}};
    for (const Row& row : rows) {
        const orvane::tests::TemporaryFolder configuration;
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(configuration.path().string()));
        for (const char* release : row.releases)
            install(release);
        EXPECT_EQ(IsMSWordInstalled(), row.isInstalled) << testing::PrintToString(row.releases);
        EXPECT_EQ(CheckMSWord(), row.year) << testing::PrintToString(row.releases);
    }
}

TEST_F(SystemProbes, EachStoresTheRequirementMessage) {
    const QString message = "This application requires Microsoft Word 2000 or higher to run.\n"
                            "Please install this software on another computer or upgrade your system.";
    IsMSWordInstalled();
    EXPECT_EQ(records.flags.strWordRequirementMsg, message);
    records.flags.strWordRequirementMsg.clear();
    CheckMSWord();
    EXPECT_EQ(records.flags.strWordRequirementMsg, message);
}

TEST_F(SystemProbes, ADriveThatIsNotThereHasTheSerialZero) {
    EXPECT_EQ(GetVolumeSerial("q"), 0);
}

TEST_F(SystemProbes, TheFirstStartEntersWhatIsFound) {
    const FoundWordProcessor found = findWordProcessor(machineWith({"/usr/bin/lowriter", "/usr/bin/soffice"}));
    EXPECT_EQ(found.program, "/usr/bin/lowriter");
    EXPECT_TRUE(found.reason.contains("/usr/bin/lowriter")) << found.reason.toStdString();
    registerWordProcessor(found);
    EXPECT_EQ(IsMSWordInstalled(), 1);
    EXPECT_EQ(CheckMSWord(), 2010);
    EXPECT_EQ(ReadKeyValue(Hive::LocalMachine, wordProcessorKey("14.0"), "Path").toString(), "/usr/bin");
    EXPECT_EQ(wordProcessorProgram(), "/usr/bin/lowriter");
}

TEST_F(SystemProbes, AProgramThatIsGoneIsTakenOut) {
    registerWordProcessor(findWordProcessor(machineWith({"/usr/bin/soffice"})));
    ASSERT_EQ(IsMSWordInstalled(), 1);
    const FoundWordProcessor found = findWordProcessor(machineWith({}));
    EXPECT_EQ(found.program, "");
    EXPECT_NE(found.reason, "");
    registerWordProcessor(found);
    EXPECT_EQ(IsMSWordInstalled(), 0);
    EXPECT_EQ(wordProcessorProgram(), "");
}

TEST_F(SystemProbes, TheConfiguredProgramComesFirstAndStandsAlone) {
    const auto both = machineWith({"/usr/bin/lowriter", "/opt/other writer"}, "/opt/other writer");
    EXPECT_EQ(findWordProcessor(both).program, "/opt/other writer");
    const auto missing = machineWith({"/usr/bin/lowriter"}, "/opt/gone");
    EXPECT_EQ(findWordProcessor(missing).program, "") << "another program than the named one would surprise";
    EXPECT_TRUE(findWordProcessor(missing).reason.contains("/opt/gone"));
}

TEST_F(SystemProbes, TheReasonStandsInALineThatAUserCanRead) {
    QFile configuration(
        QString::fromStdString((platform::registry::configurationFolder() / "wordprocessor.conf").string()));
    CreateKey(Hive::LocalMachine, "Test"); // makes the folder
    ASSERT_TRUE(configuration.open(QIODevice::WriteOnly));
    configuration.write("/bin/sh\n");
    configuration.close();
    lookForWordProcessor();
    QFile line(path("WordProcessor.txt"));
    ASSERT_TRUE(line.open(QIODevice::ReadOnly));
    EXPECT_EQ(line.readAll(), "Word processor: /bin/sh, as named in wordprocessor.conf.\n");
    EXPECT_EQ(wordProcessorProgram(), "/bin/sh");
}

} // namespace
} // namespace tavrelion::tests
