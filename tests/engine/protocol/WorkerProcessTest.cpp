#include "protocol/WorkerProcess.h"
#include "protocol/PartFile.h"
#include "support/FakeWorker.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <csignal>
#include <thread>

namespace orvane::protocol {
namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using tests::kAcceptedLine;
using tests::kFinishedLine;
using tests::say;
namespace fs = std::filesystem;

constexpr auto kLong = 20s;

class WorkerProcessTest : public testing::Test {
protected:
    Job job() const {
        Job result;
        result.source = "a.pdf";
        result.target = (folder() / "a.docx").string();
        result.logPath = (folder() / "run.log").string();
        return result;
    }
    const fs::path& folder() const { return m_folder.path(); }

    /// All messages of a worker that does what the shell commands say.
    std::vector<Message> messagesOf(const std::string& commands) {
        WorkerProcess worker(tests::writeFakeWorker(folder(), commands), job());
        std::vector<Message> messages;
        while (!worker.hasEnded())
            if (auto message = worker.next(kLong))
                messages.push_back(std::move(*message));
        EXPECT_FALSE(worker.next(0ms)) << "nothing follows the last message";
        return messages;
    }
    std::string log() const { return tests::readFile(folder() / "run.log"); }

private:
    tests::TemporaryFolder m_folder;
};

TEST_F(WorkerProcessTest, HandsTheJobOverAndFollowsIt) {
    const auto messages = messagesOf(say(kAcceptedLine) + say(kFinishedLine));
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(std::get<Accepted>(messages[0]).selectedPages, 2);
    EXPECT_EQ(std::get<Finished>(messages[1]).counts.charactersRead, 5);
    std::string line = tests::readFile(folder() / "job");
    line.pop_back();
    EXPECT_EQ(decodeJob(line).target, job().target);
    EXPECT_FALSE(fs::exists(folder() / "run.log")) << "a worker that comes to its end writes its own record";
}

TEST_F(WorkerProcessTest, DoesNotWaitWhenNotAskedTo) {
    WorkerProcess worker(tests::writeFakeWorker(folder(), "read word\n"), job());
    EXPECT_FALSE(worker.next(0ms));
    EXPECT_FALSE(worker.hasEnded());
}

TEST_F(WorkerProcessTest, SaysWhenThereIsNoWorker) {
    try {
        const WorkerProcess worker(folder() / "orvane-worker", job());
        ADD_FAILURE() << "started";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), FailureCode::WorkerDied);
        EXPECT_THAT(failure.what(), HasSubstr("orvane-worker"));
        refuseUnstarted(job(), failure);
    }
    EXPECT_THAT(log(), HasSubstr("result:   WorkerDied: cannot start"));
}

TEST_F(WorkerProcessTest, ReportsADeathBeforeTheJobWasAccepted) {
    const auto messages = messagesOf("echo 'cannot find a font' >&2\nexit 3\n");
    ASSERT_EQ(messages.size(), 1u);
    const auto& refused = std::get<Refused>(messages[0]);
    EXPECT_EQ(refused.code, FailureCode::WorkerDied);
    EXPECT_THAT(refused.message, HasSubstr("ended with code 3"));
    EXPECT_THAT(refused.message, HasSubstr("cannot find a font"));
    EXPECT_THAT(log(), HasSubstr("result:   WorkerDied"));
}

TEST_F(WorkerProcessTest, ReportsADeathBySignalAndCleansUpBehindIt) {
    tests::writeFile(job().target, "old");
    const std::string part = partPath(job().target).string();
    const auto messages = messagesOf(say(kAcceptedLine) + "echo half > '" + part + "'\nkill -SEGV $$\n");
    ASSERT_EQ(messages.size(), 2u);
    EXPECT_EQ(std::get<Failed>(messages[1]).code, FailureCode::WorkerDied);
    EXPECT_THAT(std::get<Failed>(messages[1]).message, HasSubstr("signal 11"));
    EXPECT_FALSE(fs::exists(part));
    EXPECT_EQ(tests::readFile(job().target), "old");
    EXPECT_THAT(log(), HasSubstr("pages:    all (2 of 3)"));
    EXPECT_THAT(log(), HasSubstr("result:   WorkerDied"));
}

TEST_F(WorkerProcessTest, TellsALimitOfTheSystemFromACrash) {
    const auto messages = messagesOf(say(kAcceptedLine) + "kill -XCPU $$\n");
    EXPECT_EQ(std::get<Failed>(messages.back()).code, FailureCode::LimitExceeded);
}

TEST_F(WorkerProcessTest, NoticesADeathThoughAnotherProcessHoldsThePipe) {
    const auto messages =
        messagesOf(say(kAcceptedLine) + "sleep 60 &\necho $! > '" + (folder() / "pid").string() + "'\nkill -KILL $$\n");
    EXPECT_THAT(std::get<Failed>(messages.back()).message, HasSubstr("signal 9"));
    kill(std::stoi(tests::readFile(folder() / "pid")), SIGKILL);
}

TEST_F(WorkerProcessTest, EndsAWorkerThatSendsWhatNoWorkerSends) {
    struct Row {
        std::string commands;
        const char* why;
    };
    const Row rows[] = {
        {"echo hello\n", "no message"},
        {say(kFinishedLine), "finished before it was accepted"},
        {say(kAcceptedLine) + say(kAcceptedLine), "accepted twice"},
        {say(kAcceptedLine) + say(R"({"type":"refused","code":"NotAPdf","message":""})"), "refused after accepted"},
        {say(R"({"type":"page","number":1,"width":1,"height":1,"rotation":0,"label":""})"), "a report too early"},
        {"head -c 1000000 /dev/zero\n", "a line without end"},
        {"yes '" + std::string(tests::kAcceptedLine) + "'\n", "a flood"},
    };
    for (const Row& row : rows) {
        // What follows would keep the worker alive for long after its offence.
        const auto messages = messagesOf(row.commands + "exec sleep 60\n");
        const Message& last = messages.back();
        const auto* refused = std::get_if<Refused>(&last);
        const std::string message = refused != nullptr ? refused->message : std::get<Failed>(last).message;
        EXPECT_THAT(message, HasSubstr("it sent what no worker sends")) << row.why;
    }
}

TEST_F(WorkerProcessTest, SurvivesAFloodOfErrorOutput) {
    const auto messages =
        messagesOf(say(kAcceptedLine) + "head -c 5000000 /dev/zero | tr '\\0' x >&2\necho the end >&2\nexit 1\n");
    const std::string& message = std::get<Failed>(messages.back()).message;
    EXPECT_THAT(message, HasSubstr("the end"));
    EXPECT_LT(message.size(), 3000u);
}

TEST_F(WorkerProcessTest, SurvivesAFloodOfReports) {
    const std::string report =
        R"({"type":"diagnostic","kind":"ContentDamaged","page":1,"box":[0,0,0,0],"message":"x"})";
    const auto messages =
        messagesOf(say(kAcceptedLine) + "yes '" + report + "' | head -n 20000\n" + say(kFinishedLine));
    EXPECT_EQ(messages.size(), 20002u);
    EXPECT_TRUE(std::holds_alternative<Finished>(messages.back()));
}

TEST_F(WorkerProcessTest, AsksForTheEndWhenCancelled) {
    const std::string cancelled = R"({"type":"failed","code":"Cancelled","message":"cancelled","page":0,"object":0})";
    WorkerProcess worker(
        tests::writeFakeWorker(folder(), say(kAcceptedLine) + "read word\n[ \"$word\" = cancel ] && " + say(cancelled)),
        job());
    ASSERT_TRUE(std::holds_alternative<Accepted>(*worker.next(kLong)));
    worker.cancel();
    worker.cancel();
    EXPECT_EQ(std::get<Failed>(*worker.next(kLong)).code, FailureCode::Cancelled);
    EXPECT_TRUE(worker.hasEnded());
}

TEST_F(WorkerProcessTest, EndsAWorkerByForceThatDoesNotStop) {
    WorkerProcess worker(tests::writeFakeWorker(folder(), say(kAcceptedLine) + "exec sleep 60\n"), job());
    ASSERT_TRUE(std::holds_alternative<Accepted>(*worker.next(kLong)));
    const auto start = std::chrono::steady_clock::now();
    worker.cancel();
    EXPECT_EQ(std::get<Failed>(*worker.next(kLong)).code, FailureCode::Cancelled);
    EXPECT_GE(std::chrono::steady_clock::now() - start, kCancelGrace) << "it has a right to its time";
}

TEST_F(WorkerProcessTest, ClosesTheLineWhenItGoes) {
    const std::string noticed = (folder() / "noticed").string();
    {
        WorkerProcess worker(
            tests::writeFakeWorker(folder(), say(kAcceptedLine) + "read word || echo > '" + noticed + "'\n"), job());
        ASSERT_TRUE(worker.next(kLong));
    }
    const auto end = std::chrono::steady_clock::now() + kLong;
    while (!fs::exists(noticed) && std::chrono::steady_clock::now() < end)
        std::this_thread::yield();
    EXPECT_TRUE(fs::exists(noticed));
}

} // namespace
} // namespace orvane::protocol
