#include "app/support/RunFixture.h"
#include "core/Polling.h"
#include "core/StartConverting.h"

namespace tavrelion::tests {
namespace {

using testing::ElementsAre;
using Password = PasswordPrompt::Password;

class PasswordStep : public RunFixture {
protected:
    /// Runs the file with these results of the engine and these entries of the user.
    void runWith(std::deque<std::int32_t> results, std::deque<QString> passwords) {
        script.results = std::move(results);
        passwordPrompt.passwords = std::move(passwords);
        run::StartConverting(run());
    }
    std::vector<std::string> passedPasswords() const {
        std::vector<std::string> passed;
        for (const auto& request : script.requests)
            passed.push_back(request.password);
        return passed;
    }
    /// The bits 32 and 64 of each call.
    std::vector<std::int32_t> passedBits() const {
        std::vector<std::int32_t> bits;
        for (const auto& request : script.requests)
            bits.push_back(request.flags & 96);
        return bits;
    }
};

TEST_F(PasswordStep, Result17AsksForTheUserPasswordAndCallsAgain) {
    runWith({17, 0}, {"open"});
    EXPECT_THAT(passwordPrompt.asked, ElementsAre(Password::User));
    EXPECT_THAT(passedPasswords(), ElementsAre("", "open"));
    EXPECT_THAT(passedBits(), ElementsAre(0, 32));
    EXPECT_EQ(run().intParseState, parse_state::kThrough);
    EXPECT_TRUE(view.isTimerOn);
}

TEST_F(PasswordStep, Result18AsksForTheOwnerPasswordAndCallsAgain) {
    runWith({18, 0}, {"own"});
    EXPECT_THAT(passwordPrompt.asked, ElementsAre(Password::Owner));
    EXPECT_THAT(passedPasswords(), ElementsAre("", "own"));
    EXPECT_THAT(passedBits(), ElementsAre(0, 64));
}

TEST_F(PasswordStep, UserThenOwnerPassesTheOwnerAndTheUserPasswordJoined) {
    runWith({17, 18, 0}, {"user", "owner"});
    EXPECT_THAT(passwordPrompt.asked, ElementsAre(Password::User, Password::Owner));
    EXPECT_THAT(passedPasswords(), ElementsAre("", "user", "owner`````user"));
    EXPECT_THAT(passedBits(), ElementsAre(0, 32, 96));
}

TEST_F(PasswordStep, OwnerThenUserLosesTheFirstPassword) {
    runWith({18, 17, 0}, {"owner", "user"});
    EXPECT_THAT(passwordPrompt.asked, ElementsAre(Password::Owner, Password::User));
    EXPECT_THAT(passedPasswords(), ElementsAre("", "owner", "user`````"));
    EXPECT_THAT(passedBits(), ElementsAre(0, 64, 96));
    EXPECT_EQ(run().strFirstPassword, " ");
}

TEST_F(PasswordStep, AWrongOwnerPasswordKeepsTheFirstUserPassword) {
    runWith({17, 18, 18, 0}, {"user", "wrong", "owner"});
    EXPECT_THAT(passedPasswords(), ElementsAre("", "user", "wrong`````user", "owner`````user"));
}

TEST_F(PasswordStep, BlanksInsideAPasswordAreRemoved) {
    runWith({17, 0}, {" my pass word "});
    EXPECT_EQ(passedPasswords().back(), "mypassword");
    EXPECT_EQ(records.job.strPdfPassword, " my pass word ");
}

TEST_F(PasswordStep, AnEmptyPasswordIsTheEnginesToJudge) {
    runWith({17, 17, 0}, {"", "right"});
    EXPECT_THAT(passedPasswords(), ElementsAre("", "", "right"));
}

TEST_F(PasswordStep, AnImageRunIsNotDisturbedByTheTicksWhileThePromptIsOpen) {
    records.flags.intRunKind = run_kind::kExtractImages;
    script.statuses = {{0, 0, 0, 2}}; // what an engine that refused its file tells
    passwordPrompt.whileOpen = [this] { run::Timer1_Timer(run()); };
    runWith({17, 0}, {"open"});
    EXPECT_THAT(passedPasswords(), ElementsAre("", "open"));
    EXPECT_EQ(script.statusCalls, 0);
    EXPECT_FALSE(journal.contains("BatchConversion"));
}

TEST_F(PasswordStep, CancelEndsTheRunAfterThisAttempt) {
    runWith({17, 0}, {});
    EXPECT_EQ(script.requests.size(), 1u);
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_EQ(view.bar, 3) << "the scan was shown before the question, the end of the attempt is not";
    EXPECT_FALSE(view.isTimerOn);
}

TEST_F(PasswordStep, AResultBelow0AfterAPasswordAsksForItOnceMore) {
    runWith({17, -1, 0}, {"first", "second"});
    EXPECT_THAT(passwordPrompt.asked, ElementsAre(Password::User, Password::User));
    EXPECT_THAT(passedPasswords(), ElementsAre("", "first", "second"));
}

TEST_F(PasswordStep, ANewFileStartsWithoutAskedPasswords) {
    run().intUserPassAsked = 1;
    run().intOwnerPassAsked = 1;
    run().intPasswordKept = 1;
    run().strFirstPassword = "old";
    runWith({18, 0}, {"own"});
    EXPECT_THAT(passedPasswords(), ElementsAre("", "own"));
    EXPECT_EQ(run().strFirstPassword, " ");
}

} // namespace
} // namespace tavrelion::tests
