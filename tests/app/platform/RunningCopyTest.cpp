#include "platform/RunningCopy.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <thread>

namespace tavrelion::tests {
namespace {

using platform::RunningCopy;

constexpr char kTitle[] = "A title with blanks";

/// Gives the test a runtime folder of its own, so that it meets no copy but its own.
class OtherCopy : public testing::Test {
protected:
    OtherCopy() {
        setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1);
        unsetenv("XDG_ACTIVATION_TOKEN");
        unsetenv("DESKTOP_STARTUP_ID");
    }
    ~OtherCopy() override {
        unsetenv("XDG_RUNTIME_DIR");
        unsetenv("XDG_ACTIVATION_TOKEN");
    }

    /// Starts a second process that knocks at the title's door; its exit code is 0 when it found a copy.
    pid_t startSecondCopy(const std::string& title = kTitle) const {
        const pid_t child = fork();
        if (child == 0)
            _exit(RunningCopy(title).askToComeForward() == RunningCopy::Found::OtherCopy ? 0 : 1);
        return child;
    }
    static int exitCodeOf(pid_t child) {
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    /// Answers knocks until one came through.
    static std::string waitForKnock(RunningCopy& copy) {
        std::string token = "none came";
        for (int i = 0; i < 500 && token == "none came"; ++i) {
            copy.answerKnock([&](const std::string& given) { token = given; });
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return token;
    }

    orvane::tests::TemporaryFolder folder;
};

TEST_F(OtherCopy, IsNotFoundWhereNobodyListens) {
    EXPECT_EQ(RunningCopy(kTitle).askToComeForward(), RunningCopy::Found::Nobody);
}

TEST_F(OtherCopy, InAnotherProcessIsFoundAndComesForward) {
    RunningCopy first(kTitle);
    ASSERT_EQ(first.listen(), RunningCopy::Listening::Yes);
    const pid_t second = startSecondCopy();
    EXPECT_EQ(waitForKnock(first), "");
    EXPECT_EQ(exitCodeOf(second), 0);
}

TEST_F(OtherCopy, IsHandedTheLeaveToTakeTheFocusAndNothingElse) {
    setenv("XDG_ACTIVATION_TOKEN", "token-7", 1);
    RunningCopy first(kTitle);
    ASSERT_EQ(first.listen(), RunningCopy::Listening::Yes);
    const pid_t second = startSecondCopy();
    EXPECT_EQ(waitForKnock(first), "token-7");
    EXPECT_EQ(exitCodeOf(second), 0);
}

TEST_F(OtherCopy, OfAnotherTitleIsNotFound) {
    RunningCopy first(kTitle);
    ASSERT_EQ(first.listen(), RunningCopy::Listening::Yes);
    EXPECT_EQ(exitCodeOf(startSecondCopy("Another title")), 1);
}

TEST_F(OtherCopy, ThatClosedIsNotFoundAnyMore) {
    {
        RunningCopy first(kTitle);
        ASSERT_EQ(first.listen(), RunningCopy::Listening::Yes);
    }
    EXPECT_EQ(RunningCopy(kTitle).askToComeForward(), RunningCopy::Found::Nobody);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

TEST_F(OtherCopy, ThatDiedLeavesTheDoorToTheNext) {
    const pid_t child = fork();
    if (child == 0) {
        RunningCopy first(kTitle);
        _exit(first.listen() == RunningCopy::Listening::Yes ? 0 : 1); // without closing
    }
    ASSERT_EQ(exitCodeOf(child), 0);
    ASSERT_FALSE(std::filesystem::is_empty(folder.path())) << "the dead copy's socket is still there";
    RunningCopy next(kTitle);
    EXPECT_EQ(next.askToComeForward(), RunningCopy::Found::Nobody);
    EXPECT_EQ(next.listen(), RunningCopy::Listening::Yes);
}

TEST_F(OtherCopy, KeepsItsDoor) {
    RunningCopy first(kTitle);
    RunningCopy second(kTitle);
    EXPECT_EQ(first.listen(), RunningCopy::Listening::Yes);
    EXPECT_EQ(second.listen(), RunningCopy::Listening::No);
    EXPECT_EQ(second.handle(), -1);
}

TEST_F(OtherCopy, OfAFolderWhosePathIsTooLongCannotBeFound) {
    setenv("XDG_RUNTIME_DIR", ("/" + std::string(200, 'x')).c_str(), 1);
    EXPECT_EQ(RunningCopy(kTitle).listen(), RunningCopy::Listening::No);
    EXPECT_EQ(RunningCopy(kTitle).askToComeForward(), RunningCopy::Found::Nobody);
}

} // namespace
} // namespace tavrelion::tests
