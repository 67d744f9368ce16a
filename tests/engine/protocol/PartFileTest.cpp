#include "protocol/PartFile.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace orvane::protocol {
namespace {

namespace fs = std::filesystem;

TEST(PartFile, StandsBesideTheTarget) {
    EXPECT_EQ(partPath("a/b.docx"), fs::path("a/b.docx.part"));
}

TEST(PartFile, StandsBesideWhatALinkLeadsTo) {
    const tests::TemporaryFolder folder;
    const fs::path real = fs::canonical(folder.path()) / "real";
    fs::create_directory(real);
    tests::writeFile(real / "b.docx", "old");
    fs::create_symlink(real / "b.docx", folder.path() / "b.docx");
    EXPECT_EQ(partPath(folder.path() / "b.docx"), real / "b.docx.part");
}

TEST(PartFile, IsRemovedWhenNobodyWritesIt) {
    const tests::TemporaryFolder folder;
    const fs::path target = folder.path() / "b.docx";
    tests::writeFile(partPath(target), "half");
    removeAbandonedPart(target);
    EXPECT_FALSE(fs::exists(partPath(target)));
    removeAbandonedPart(target);
}

TEST(PartFile, StaysWhileAJobHoldsIt) {
    const tests::TemporaryFolder folder;
    const fs::path target = folder.path() / "b.docx";
    const int descriptor = open(partPath(target).c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(descriptor, LOCK_EX | LOCK_NB), 0);
    removeAbandonedPart(target);
    EXPECT_TRUE(fs::exists(partPath(target)));
    close(descriptor);
}

} // namespace
} // namespace orvane::protocol
