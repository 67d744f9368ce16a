#include "worker/TargetFile.h"
#include "base/Failure.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <functional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::worker {
namespace {

namespace fs = std::filesystem;
using tests::readFile;
using tests::writeFile;

class TargetFileTest : public testing::Test {
protected:
    fs::path target() const { return m_folder.path() / "a.docx"; }
    fs::path part() const { return m_folder.path() / "a.docx.part"; }
    const fs::path& folder() const { return m_folder.path(); }

    static void expectRefused(const fs::path& target, FailureCode code, const char* why) {
        try {
            const TargetFile file(target);
            ADD_FAILURE() << why << " was accepted";
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.code(), code) << why << ": " << failure.what();
        }
    }

private:
    tests::TemporaryFolder m_folder;
};

TEST_F(TargetFileTest, ReplacesTheOldFileInOneStep) {
    writeFile(target(), "old");
    chmod(target().c_str(), 0640);
    {
        TargetFile file(target());
        writeFile(file.part(), "new");
        EXPECT_EQ(readFile(target()), "old");
        file.commit();
    }
    EXPECT_EQ(readFile(target()), "new");
    EXPECT_FALSE(fs::exists(part()));
    EXPECT_EQ(fs::status(target()).permissions(), fs::perms(0640)) << "who may read it stays as it was";
}

TEST_F(TargetFileTest, CommitsAPartThatTheWriterPutInPlaceItself) {
    TargetFile file(target());
    writeFile(folder() / "other", "new");
    fs::rename(folder() / "other", file.part());
    file.commit();
    EXPECT_EQ(readFile(target()), "new");
}

TEST_F(TargetFileTest, LeavesTheOldFileWhenItIsNotCommitted) {
    writeFile(target(), "old");
    {
        TargetFile file(target());
        writeFile(file.part(), "half");
    }
    EXPECT_EQ(readFile(target()), "old");
    EXPECT_FALSE(fs::exists(part()));
}

TEST_F(TargetFileTest, CannotBeAbandonedOnceItStands) {
    TargetFile file(target());
    writeFile(file.part(), "new");
    file.commit();
    EXPECT_FALSE(file.abandon());
    EXPECT_EQ(readFile(target()), "new");
}

TEST_F(TargetFileTest, CannotBeCommittedOnceItIsAbandoned) {
    TargetFile file(target());
    writeFile(file.part(), "new");
    EXPECT_TRUE(file.abandon());
    file.commit();
    EXPECT_FALSE(fs::exists(target()));
    EXPECT_FALSE(fs::exists(part()));
}

TEST_F(TargetFileTest, ThrowsAwayWhatADeadJobLeft) {
    writeFile(part(), "a long text that a dead job left");
    TargetFile file(target());
    EXPECT_EQ(readFile(part()), "");
}

TEST_F(TargetFileTest, WritesWhatALinkLeadsTo) {
    fs::create_directory(folder() / "real");
    writeFile(folder() / "real" / "a.docx", "old");
    fs::create_symlink(folder() / "real" / "a.docx", target());
    TargetFile file(target());
    writeFile(file.part(), "new");
    file.commit();
    EXPECT_TRUE(fs::is_symlink(target()));
    EXPECT_EQ(readFile(folder() / "real" / "a.docx"), "new");
}

TEST_F(TargetFileTest, RefusesWhatCannotBeWritten) {
    fs::create_directory(folder() / "folder.docx");
    ASSERT_EQ(mkfifo((folder() / "pipe.docx").c_str(), 0600), 0);
    fs::create_directory(folder() / "b.docx.part");
    expectRefused(folder() / "missing" / "a.docx", FailureCode::TargetUnwritable, "a missing folder");
    expectRefused("/proc/a.docx", FailureCode::TargetUnwritable, "a folder that even root cannot write to");
    expectRefused(folder() / "folder.docx", FailureCode::TargetUnwritable, "a folder");
    expectRefused(folder() / "pipe.docx", FailureCode::TargetUnwritable, "a pipe");
    expectRefused(folder() / "b.docx", FailureCode::TargetUnwritable, "a folder in the part file's place");
}

TEST_F(TargetFileTest, DoesNotFollowALinkInThePartFilesPlace) {
    writeFile(folder() / "precious", "precious");
    fs::create_symlink(folder() / "precious", part());
    expectRefused(target(), FailureCode::TargetUnwritable, "a link in the part file's place");
    EXPECT_EQ(readFile(folder() / "precious"), "precious");
}

TEST_F(TargetFileTest, RefusesATargetThatAnotherJobMakes) {
    const TargetFile first(target());
    expectRefused(target(), FailureCode::TargetInUse, "another job's target");
    EXPECT_TRUE(fs::exists(part())) << "the first job goes on";
}

TEST_F(TargetFileTest, RefusesATargetThatAnotherProgramHolds) {
    writeFile(target(), "old");
    const int descriptor = open(target().c_str(), O_RDWR);
    const std::function<void()> locks[] = {
        [&] { ASSERT_EQ(flock(descriptor, LOCK_EX), 0); },
        [&] { ASSERT_EQ(flock(descriptor, LOCK_SH), 0); },
        [&] {
            flock(descriptor, LOCK_UN);
            struct flock lock {};
            lock.l_type = F_WRLCK;
            ASSERT_EQ(fcntl(descriptor, F_OFD_SETLK, &lock), 0);
        },
    };
    for (const auto& lock : locks) {
        lock();
        expectRefused(target(), FailureCode::TargetInUse, "a locked target");
        EXPECT_FALSE(fs::exists(part()));
    }
    close(descriptor);
    EXPECT_NO_THROW(TargetFile{target()});
}

TEST_F(TargetFileTest, RefusesAProgramThatRuns) {
    fs::copy_file("/bin/sleep", target());
    const std::string command = "'" + target().string() + "' 60 & echo $! > '" + (folder() / "pid").string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::string pid = readFile(folder() / "pid");
    // The shell has started the child, which may not have become the program yet.
    const std::string exe = "/proc/" + pid.substr(0, pid.find('\n')) + "/exe";
    while (fs::read_symlink(exe) != fs::canonical(target()))
        usleep(1000);
    expectRefused(target(), FailureCode::TargetInUse, "a running program");
    kill(std::stoi(pid), SIGKILL);
}

} // namespace
} // namespace orvane::worker
