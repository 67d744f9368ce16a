#include "services/InstallLog.h"
#include "app/support/ScratchHome.h"

#include <QFile>

#include <gtest/gtest.h>

namespace tavrelion::tests {
namespace {

class InstallLog : public ScratchHome {
protected:
    void log(const QByteArray& lines) const {
        QFile file(path("install.log"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(lines);
    }
};

TEST_F(InstallLog, ThatIsMissingGivesNothingAndTheDefaultChannel) {
    EXPECT_FALSE(ReadInstallLog("filename").isValid());
    EXPECT_FALSE(ReadInstallLog("installedondate").isValid());
    EXPECT_EQ(GetInstallChannel(), "default");
}

TEST_F(InstallLog, TheChannelStandsInTheInstallersName) {
    struct Row {
        const char* line;
        const char* channel;
        const char* why;
    };
    for (const Row& row : {
             Row{"Source: C:\\Downloads\\setup_abc.exe\r\n", "abc", "behind the underscore"},
             Row{"Source: /home/ada/setup_abc.exe\n", "abc", "this platform's separator"},
             Row{"SOURCE: C:\\SETUP_ABC.EXE | copied\r\n", "abc", "lower case; the character behind does no harm"},
             Row{"Source: C:\\a_b_c.exe\r\n", "c", "the last underscore"},
             Row{"Source: C:\\my.exe files_x\\setup_abc.exe\r\n", "abc", "the last .exe"},
             Row{"Source: C:\\setup.exe\r\n", "default", "no underscore"},
             Row{"Source: C:\\setup_abc.msi\r\n", "default", "no .exe"},
             Row{"Source: setup_abc.exe\r\n", "default", "no folder"},
             Row{"Copied: C:\\setup_abc.exe\r\n", "default", "another line"},
             Row{"Source: C:\\setup.exe_old\r\n", "default", "the underscore behind the extension"},
             Row{"Source: C:\\setup_one.exe\r\nSource: C:\\setup_two.exe\r\n", "two", "the last line counts"},
             Row{"Source: C:\\setup_one.exe\r\nnothing\r\n", "one", "lines that say nothing are passed over"},
             Row{"Source: C:\\setup_abc.exe", "abc", "a line without an end"},
         }) {
        log(row.line);
        EXPECT_EQ(GetInstallChannel(), row.channel) << row.why;
    }
}

TEST_F(InstallLog, ThePositionsOfAnInstallerNameKeepTheirExtraCharacter) {
    EXPECT_EQ(ParseInstallLine("2", "source: c:\\setup_abc.exe\" done"), "setup_abc.exe\"");
    EXPECT_EQ(ParseInstallLine("2", "source: c:\\setup_abc.exe"), "setup_abc.exe");
    EXPECT_EQ(ParseInstallLine("2", "source: c:\\a.exe\\folder"), "") << "the separator behind the extension";
}

TEST_F(InstallLog, TellsWhenTheInstallationStarted) {
    log("*** Installation Started 11/21/2009 4:27:33 and more\r\n");
    EXPECT_EQ(ReadInstallLog("installedondate").toString(), " 11/21/2009 4:27:3") << "eighteen characters";
    log("Installation started\r\n");
    EXPECT_FALSE(ReadInstallLog("installedondate").isValid()) << "nothing behind it";
}

TEST_F(InstallLog, AnswersNothingForOtherKeysAndSelectors) {
    log("Installation started 11/21/2009\r\nSource: C:\\setup_abc.exe\r\n");
    EXPECT_FALSE(ReadInstallLog("version").isValid());
    EXPECT_EQ(ParseInstallLine("3", "source: c:\\setup_abc.exe"), "");
}

} // namespace
} // namespace tavrelion::tests
