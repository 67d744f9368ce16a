#include "core/DiskFileOperations.h"
#include "core/LibraryEngineFactory.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>

namespace fs = std::filesystem;

namespace tavrelion::tests {
namespace {

class DiskFiles : public testing::Test {
protected:
    QString path(const std::string& name) const { return QString::fromStdString((folder.path() / name).string()); }
    void write(const std::string& name, const std::string& text) const { std::ofstream(folder.path() / name) << text; }
    std::string read(const std::string& name) const {
        std::ifstream file(folder.path() / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    orvane::tests::TemporaryFolder folder;
    DiskFileOperations files;
};

TEST_F(DiskFiles, TellsFilesFromFolders) {
    write("a.pdf", "x");
    EXPECT_TRUE(files.exists(path("a.pdf")));
    EXPECT_FALSE(files.folderExists(path("a.pdf")));
    EXPECT_FALSE(files.exists(path("")));
    EXPECT_TRUE(files.folderExists(path("")));
    EXPECT_FALSE(files.exists(path("b.pdf")));
}

TEST_F(DiskFiles, ANewFolderIsTheUsersAlone) {
    files.createFolder(path("deep/er"));
    EXPECT_EQ(fs::status(folder.path() / "deep/er").permissions(), fs::perms::owner_all);
}

TEST_F(DiskFiles, DeletesAFolderWithAllItHoldsButNothingBehindALink) {
    files.createFolder(path("staging/inner"));
    write("staging/inner/a", "x");
    write("kept", "x");
    fs::create_symlink(folder.path() / "kept", folder.path() / "staging/link");
    EXPECT_EQ(files.deleteFolder(path("staging")), FileOperations::Deletion::Done);
    EXPECT_FALSE(files.folderExists(path("staging")));
    EXPECT_TRUE(files.exists(path("kept")));
}

TEST_F(DiskFiles, ACopyOverwrites) {
    write("a", "new");
    write("b", "old");
    files.copy(path("a"), path("b"));
    EXPECT_EQ(read("b"), "new");
    EXPECT_THROW(files.copy(path("missing"), path("b")), std::exception);
}

TEST_F(DiskFiles, AFileCanBeReachedUnderASecondName) {
    write("A.PDF", "text");
    files.makeReachableAs(path("A.PDF"), path("A.pdf"));
    EXPECT_EQ(read("A.pdf"), "text");
    EXPECT_TRUE(files.exists(path("A.PDF")));
}

TEST_F(DiskFiles, ASecondNameThatBelongedToAnotherFileIsReplaced) {
    write("A.PDF", "new");
    write("A.pdf", "stale");
    files.makeReachableAs(path("A.PDF"), path("A.pdf"));
    EXPECT_EQ(read("A.pdf"), "new");
}

TEST_F(DiskFiles, AFileThatHasTheNameOrIsMissingStaysAlone) {
    write("a.pdf", "text");
    files.makeReachableAs(path("a.pdf"), path("a.pdf"));
    EXPECT_EQ(read("a.pdf"), "text");
    EXPECT_NO_THROW(files.makeReachableAs(path("b.PDF"), path("b.pdf")));
    EXPECT_FALSE(files.exists(path("b.pdf")));
}

TEST_F(DiskFiles, AnEngineThatIsNotBesideTheProgramCannotBeMade) {
    LibraryEngineFactory engines(folder.path());
    EXPECT_THROW(engines.create(), std::runtime_error);
    write("liborvane.so", "no library at all");
    EXPECT_THROW(engines.create(), std::runtime_error);
}

} // namespace
} // namespace tavrelion::tests
