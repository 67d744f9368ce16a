#include "worker/SourceFile.h"
#include "base/Failure.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::worker {
namespace {

namespace fs = std::filesystem;

class SourceFileTest : public testing::Test {
protected:
    fs::path file(const char* name) const { return m_folder.path() / name; }

    static void expectRefused(const fs::path& source, FailureCode code, const char* why) {
        try {
            checkSource(source);
            ADD_FAILURE() << why << " was accepted";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.code(), code) << why << ": " << failure.what();
        }
    }

private:
    tests::TemporaryFolder m_folder;
};

TEST_F(SourceFileTest, TakesAFile) {
    tests::writeFile(file("a.pdf"), "anything");
    EXPECT_NO_THROW(checkSource(file("a.pdf")));
}

TEST_F(SourceFileTest, RefusesWhatCannotBeRead) {
    tests::writeFile(file("empty.pdf"), "");
    ASSERT_EQ(mkfifo(file("pipe.pdf").c_str(), 0600), 0);
    expectRefused(file("missing.pdf"), FailureCode::SourceUnreadable, "a missing file");
    expectRefused(file(""), FailureCode::SourceUnreadable, "a folder");
    expectRefused(file("pipe.pdf"), FailureCode::SourceUnreadable, "a pipe");
    expectRefused("/proc/self/mem", FailureCode::SourceUnreadable, "a file that even root cannot read");
    expectRefused(file("empty.pdf"), FailureCode::NotAPdf, "an empty file");
}

TEST_F(SourceFileTest, RefusesAFileThatAnotherProgramHolds) {
    tests::writeFile(file("a.pdf"), "anything");
    const int descriptor = open(file("a.pdf").c_str(), O_RDWR);
    struct flock lock {};
    lock.l_type = F_WRLCK;
    ASSERT_EQ(fcntl(descriptor, F_OFD_SETLK, &lock), 0);
    expectRefused(file("a.pdf"), FailureCode::TargetInUse, "a locked file");
    close(descriptor);
    EXPECT_NO_THROW(checkSource(file("a.pdf")));
}

TEST_F(SourceFileTest, SharesAFileWithOtherReaders) {
    tests::writeFile(file("a.pdf"), "anything");
    const int descriptor = open(file("a.pdf").c_str(), O_RDONLY);
    ASSERT_EQ(flock(descriptor, LOCK_SH), 0);
    EXPECT_NO_THROW(checkSource(file("a.pdf")));
    close(descriptor);
}

} // namespace
} // namespace orvane::worker
