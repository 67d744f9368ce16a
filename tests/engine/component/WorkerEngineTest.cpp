#include "component/WorkerEngine.h"
#include "support/FakeWorker.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <thread>

namespace orvane::component {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using tests::kAcceptedLine;
using tests::kFinishedLine;
using tests::say;

struct Status {
    std::int32_t code = -1;
    std::int32_t first = -1;
    std::int32_t second = -1;
    std::int16_t finish = -1;
};

Status statusOf(ConversionEngine& engine) {
    Status status;
    status.code = engine.GetStatus(status.first, status.second, status.finish);
    return status;
}

/// Polls as an application does, until the end or until `isReached`.
template<typename Condition>
Status waitFor(ConversionEngine& engine, Condition isReached) {
    const auto end = std::chrono::steady_clock::now() + 30s;
    Status status = statusOf(engine);
    while (!isReached(status) && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(1ms);
        status = statusOf(engine);
    }
    return status;
}

Status waitForEnd(ConversionEngine& engine) {
    return waitFor(engine, [](const Status& status) { return status.finish != finish::kWorking; });
}

std::string refusal(const char* code) {
    return say(std::string(R"({"type":"refused","message":"no","code":")") + code + "\"}");
}

/// The engine with shell scripts as its workers.
class WorkerEngineTest : public testing::Test {
protected:
    std::unique_ptr<WorkerEngine> engineWith(const std::string& commands) const {
        return std::make_unique<WorkerEngine>(tests::writeFakeWorker(m_folder.path(), commands));
    }
    ConversionRequest request() const {
        ConversionRequest result;
        result.sourcePath = "a.pdf";
        result.flags = flag::kAllPages | flag::kWordFormat | flag::kDocx;
        result.targetPath = (m_folder.path() / "a.docx").string();
        result.logPath = (m_folder.path() / "run.log").string();
        result.applicationName = "Tavrelion";
        return result;
    }
    std::string log() const { return tests::readFile(m_folder.path() / "run.log"); }
    std::filesystem::path file(const char* name) const { return m_folder.path() / name; }

private:
    tests::TemporaryFolder m_folder;
};

TEST_F(WorkerEngineTest, ReturnsTheContractsResults) {
    struct Row {
        std::string commands;
        std::int32_t expected;
    };
    const Row rows[] = {
        {say(kAcceptedLine) + "read word\n", 0},
        {refusal("TargetInUse"), 15},
        {refusal("UserPasswordNeeded"), 17},
        {refusal("OwnerPasswordNeeded"), 18},
        {refusal("NotAPdf"), 1},
        {refusal("NotSupported"), 1},
        {refusal("NoPageInRange"), 1},
        {"exit 1\n", 1},
        {"echo nonsense\n", 1},
    };
    for (const Row& row : rows) {
        const auto engine = engineWith(row.commands);
        EXPECT_EQ(engine->DoConvert(request()), row.expected) << row.commands;
        EXPECT_EQ(statusOf(*engine).finish, row.expected == 0 ? finish::kWorking : finish::kFailed) << row.commands;
    }
}

TEST_F(WorkerEngineTest, HasNothingToTellBeforeAJob) {
    const auto engine = engineWith("");
    const Status status = statusOf(*engine);
    EXPECT_EQ(status.code, 0);
    EXPECT_EQ(status.finish, finish::kWorking);
    engine->DoCancel();
}

TEST_F(WorkerEngineTest, FollowsTheWorkToItsEnd) {
    const auto engine =
        engineWith(say(kAcceptedLine) + say(R"({"type":"status","stage":"pageOfPages","first":3,"second":9})") +
                   "while [ ! -e '" + file("go").string() + "' ]; do sleep 0.01; done\n" +
                   say(R"({"type":"status","stage":"documentComplete","first":0,"second":0})") + say(kFinishedLine));
    ASSERT_EQ(engine->DoConvert(request()), result::kAccepted);
    const Status working = waitFor(*engine, [](const Status& status) { return status.code == 5; });
    EXPECT_EQ(working.first, 3);
    EXPECT_EQ(working.second, 9);
    EXPECT_EQ(working.finish, finish::kWorking);

    tests::writeFile(file("go"), "");
    const Status done = waitForEnd(*engine);
    EXPECT_EQ(done.finish, finish::kSucceeded);
    EXPECT_EQ(done.code, 11);
    EXPECT_EQ(statusOf(*engine).finish, finish::kSucceeded) << "asked again";
}

TEST_F(WorkerEngineTest, ReportsADeadWorkerAsAFailureWithARecord) {
    const auto engine = engineWith(say(kAcceptedLine) + "echo 'all is lost' >&2\nkill -SEGV $$\n");
    ASSERT_EQ(engine->DoConvert(request()), result::kAccepted);
    EXPECT_EQ(waitForEnd(*engine).finish, finish::kFailed);
    EXPECT_THAT(log(), HasSubstr("Tavrelion"));
    EXPECT_THAT(log(), HasSubstr("result:   WorkerDied"));
    EXPECT_THAT(log(), HasSubstr("all is lost"));
}

TEST_F(WorkerEngineTest, FailsWithARecordWhenThereIsNoWorker) {
    WorkerEngine engine(file("missing"));
    EXPECT_EQ(engine.DoConvert(request()), result::kFailed);
    EXPECT_THAT(log(), HasSubstr("result:   WorkerDied: cannot start"));
}

TEST_F(WorkerEngineTest, FailsWithARecordWhenTheRequestMakesNoSense) {
    ConversionRequest wrong = request();
    wrong.layoutCode = 9;
    const auto engine = engineWith(say(kAcceptedLine));
    EXPECT_EQ(engine->DoConvert(wrong), result::kFailed);
    EXPECT_THAT(log(), HasSubstr("result:   InvalidRequest"));
    EXPECT_THAT(log(), HasSubstr("source:   a.pdf"));
}

TEST_F(WorkerEngineTest, DoesOneJobOnly) {
    const auto engine = engineWith(say(kAcceptedLine) + "read word\n");
    EXPECT_EQ(engine->DoConvert(request()), result::kAccepted);
    EXPECT_EQ(engine->DoConvert(request()), result::kFailed);
}

TEST_F(WorkerEngineTest, LeavesAnUncancelledWorkerToItself) {
    // The worker is told to outlive its starter; that it does is a test of the worker.
    engineWith(say(kAcceptedLine) + "read word\n")->DoConvert(request());
    EXPECT_THAT(tests::readFile(file("job")), HasSubstr(R"("whenStarterEnds":"finish")"));
}

TEST_F(WorkerEngineTest, CancelsEvenWhenItIsReleasedAtOnce) {
    {
        const auto engine = engineWith(say(kAcceptedLine) + "read word\n[ \"$word\" = cancel ] && echo > '" +
                                       file("stopped").string() + "'\n");
        ASSERT_EQ(engine->DoConvert(request()), result::kAccepted);
        engine->DoCancel();
    }
    const auto end = std::chrono::steady_clock::now() + 30s;
    while (!std::filesystem::exists(file("stopped")) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(1ms);
    EXPECT_TRUE(std::filesystem::exists(file("stopped")));
}

} // namespace
} // namespace orvane::component
