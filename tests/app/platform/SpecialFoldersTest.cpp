#include "platform/SpecialFolders.h"
#include "platform/DateText.h"
#include "platform/Environment.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>

namespace fs = std::filesystem;

namespace tavrelion::tests {
namespace {

/// A user whose home is a folder of the test.
class UserDirs : public testing::Test {
protected:
    UserDirs()
        : m_oldHome(platform::environmentValue("HOME").value_or("")) {
        setenv("HOME", home.path().c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
    }
    ~UserDirs() override {
        setenv("HOME", m_oldHome.c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
    }

    void configure(const std::string& text, const fs::path& folder) const {
        fs::create_directories(folder);
        std::ofstream(folder / "user-dirs.dirs") << text;
    }
    void configure(const std::string& text) const { configure(text, home.path() / ".config"); }
    static std::string documents() {
        return platform::specialFolder(platform::SpecialFolder::Documents).value_or("nothing").string();
    }

    orvane::tests::TemporaryFolder home;

private:
    std::string m_oldHome;
};

TEST_F(UserDirs, GiveTheDocumentsFolderBelowTheHome) {
    configure(
        "# written by the desktop\nXDG_DESKTOP_DIR=\"$HOME/Desk\"\nXDG_DOCUMENTS_DIR=\"$HOME/Meine Dokumente\"\n");
    EXPECT_EQ(documents(), home.path().string() + "/Meine Dokumente");
}

TEST_F(UserDirs, GiveAnAbsoluteFolder) {
    configure("XDG_DOCUMENTS_DIR=\"/data/doc\\\"s\"\n");
    EXPECT_EQ(documents(), "/data/doc\"s");
}

TEST_F(UserDirs, AreReadFromTheConfiguredPlace) {
    setenv("XDG_CONFIG_HOME", (home.path() / "conf").c_str(), 1);
    configure("XDG_DOCUMENTS_DIR=\"$HOME/There\"\n", home.path() / "conf");
    EXPECT_EQ(documents(), home.path().string() + "/There");
}

TEST_F(UserDirs, WithARelativeFolderCountAsUnset) {
    configure("XDG_DOCUMENTS_DIR=\"somewhere\"\n#XDG_DOCUMENTS_DIR=\"/commented\"\n");
    EXPECT_EQ(documents(), home.path().string());
}

TEST_F(UserDirs, ThatAreMissingGiveTheUsualFolderOrTheHome) {
    EXPECT_EQ(documents(), home.path().string());
    fs::create_directory(home.path() / "Documents");
    EXPECT_EQ(documents(), home.path().string() + "/Documents");
}

TEST_F(UserDirs, KnowNoOtherFolder) {
    EXPECT_EQ(platform::specialFolder(platform::SpecialFolder{7}), std::nullopt);
}

TEST(Environment, TellsAnUnsetVariableFromAnEmptyOne) {
    setenv("TAVRELION_TEST_VARIABLE", "", 1);
    EXPECT_EQ(platform::environmentValue("TAVRELION_TEST_VARIABLE"), "");
    unsetenv("TAVRELION_TEST_VARIABLE");
    EXPECT_EQ(platform::environmentValue("TAVRELION_TEST_VARIABLE"), std::nullopt);
}

TEST(Environment, KnowsTheProgramsOwnFile) {
    EXPECT_EQ(platform::programFile().filename(), "test_app_platform");
}

TEST(DateText, HoldsDateAndTimeOfDay) {
    setenv("TZ", "UTC", 1);
    tzset();
    EXPECT_EQ(platform::generalDateText(1706713445), "01/31/24 15:04:05") << "as the C locale writes it";
}

} // namespace
} // namespace tavrelion::tests
