#include "platform/DateText.h"
#include "platform/DocumentOpening.h"
#include "platform/Environment.h"
#include "platform/FolderDeletion.h"
#include "platform/SharedLibrary.h"
#include "platform/SpecialFolders.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace tavrelion::tests {
namespace {

/// What every system does alike. Needs nothing but the room itself, so that it also runs on Windows.
class System : public testing::Test {
protected:
    System() {
        if (!fs::create_directories(m_folder))
            throw std::runtime_error("the folder of the test belongs to another run");
    }
    ~System() override { fs::remove_all(m_folder); }

    fs::path in(const fs::path& name) const { return m_folder / name; }
    static void write(const fs::path& file) { std::ofstream(file) << "text"; }

private:
    /// A name of its own for every test: tests run beside each other, each in a process of its own.
    fs::path m_folder = fs::temp_directory_path() / ("tavrelion system test " + std::to_string(std::random_device{}()));
};

TEST_F(System, DeletesAFolderWithAllItHolds) {
    const fs::path folder = in(fs::path(u"папка 資料"));
    fs::create_directories(folder / "inner");
    write(folder / "inner" / "a.txt");
    write(folder / "b.txt");
    EXPECT_EQ(platform::deleteFolder(folder), platform::Deletion::Done);
    EXPECT_FALSE(fs::exists(folder));
}

TEST_F(System, CountsAFolderThatIsNotThereAsDeleted) {
    EXPECT_EQ(platform::deleteFolder(in("missing")), platform::Deletion::Done);
}

TEST_F(System, TellsItsOwnProgramFile) {
    EXPECT_TRUE(fs::is_regular_file(platform::programFile())) << platform::programFile();
}

TEST_F(System, KnowsNoVariableThatIsNotSet) {
    EXPECT_EQ(platform::environmentValue("TAVRELION_NOBODY_SETS_THIS"), std::nullopt);
    EXPECT_TRUE(platform::environmentValue("PATH").has_value());
    EXPECT_FALSE(platform::environmentValue("PATH")->empty());
    EXPECT_EQ(platform::environmentValue("PATH")->find('\0'), std::string::npos) << "the terminator is not part of it";
}

TEST_F(System, WritesADateAndATime) {
    constexpr std::time_t kMoment = 1000000000; // September 2001
    const std::string text = platform::generalDateText(kMoment);
    EXPECT_NE(text.find("01"), std::string::npos) << text;
    EXPECT_NE(text.find(' '), std::string::npos) << text;
    EXPECT_NE(text.find(':'), std::string::npos) << text;
}

TEST_F(System, SaysWhyALibraryCannotBeLoaded) {
    try {
        const platform::SharedLibrary library(in("no such library"));
        FAIL() << "it was loaded";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()), "");
    }
}

TEST_F(System, KnowsTheUsersDocuments) {
    const auto folder = platform::specialFolder(platform::SpecialFolder::Documents);
    ASSERT_TRUE(folder.has_value());
    EXPECT_TRUE(folder->is_absolute()) << *folder;
}

TEST_F(System, StartsNoProgramThatIsNotThere) {
    EXPECT_EQ(platform::openWith(in("no such program"), in("a.docx"), in("")), platform::Launch::Failed);
    EXPECT_EQ(platform::openWith("", in("a.docx"), in("")), platform::Launch::Failed);
}

} // namespace
} // namespace tavrelion::tests
