#include "core/EngineCall.h"
#include "app/support/RunFixture.h"
#include "core/Polling.h"
#include "core/ProgressLoading.h"
#include "core/QtEventLoop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <thread>

namespace tavrelion::tests {
namespace {

using std::chrono::milliseconds;

class EngineCall : public RunFixture {};

TEST_F(EngineCall, WithoutAnEngineFails) {
    EXPECT_THROW(run::callEngine(run(), [](orvane::ConversionEngine&) {}), std::runtime_error);
}

TEST_F(EngineCall, KeepsTheEngineAliveWhenTheWindowGoesMeanwhile) {
    run().objEngine = engines.create();
    eventLoop.whileAside = [this] { run::Form_Unload(run()); };
    int aliveInCall = 0;
    run::callEngine(run(), [&](orvane::ConversionEngine&) { aliveInCall = script.enginesAlive; });
    EXPECT_EQ(aliveInCall, 1);
    EXPECT_EQ(script.enginesAlive, 0);
    EXPECT_FALSE(run().isEngineBusy);
}

TEST_F(EngineCall, IsNotDisturbedByATickOfTheTimer) {
    script.whileConverting = [this] { run::Timer1_Timer(run()); };
    attempt();
    EXPECT_EQ(script.statusCalls, 0);
    run::Timer1_Timer(run());
    EXPECT_EQ(script.statusCalls, 1);
}

TEST_F(EngineCall, ATickThatOutlivesItsWindowWritesNothing) {
    run().objEngine = engines.create();
    eventLoop.whileAside = [this] { run::Form_Unload(run()); };
    script.statuses = {{11, 0, 0, 1}};
    run::Timer1_Timer(run());
    EXPECT_TRUE(view.statuses.isEmpty());
    EXPECT_FALSE(journal.contains("ShowCompleted"));
}

TEST_F(EngineCall, ThatTakesLongIsToldAfterFiveSeconds) {
    const std::map<std::int16_t, QString> texts{{run_kind::kConvert, "<msgConvertingPDFToDOC>"},
                                                {run_kind::kExtractImages, "<msgExtractImages>"}};
    for (const auto& [kind, text] : texts) {
        records.flags.intRunKind = kind;
        view.statuses.clear();
        eventLoop.tasksTakeLong = true;
        prepareRun();
        run::Form_Load(run());
        EXPECT_EQ(run().engineNotice.after, milliseconds(5000));
        EXPECT_TRUE(view.statuses.contains(text));
    }
}

/// The real event loop.
class TaskAside : public testing::Test {
protected:
    QtEventLoop loop;
};

TEST_F(TaskAside, RunsOnAThreadOfItsOwnWhileTimersTick) {
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(milliseconds(5));
    std::thread::id taskThread;
    loop.runAside(
        [&] {
            taskThread = std::this_thread::get_id();
            std::this_thread::sleep_for(milliseconds(200));
        },
        {});
    EXPECT_NE(taskThread, std::this_thread::get_id());
    EXPECT_GT(ticks, 10);
}

TEST_F(TaskAside, HandsItsErrorOver) {
    try {
        loop.runAside([] { throw std::runtime_error("the task fell over"); }, {});
        FAIL() << "nothing was thrown";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "the task fell over");
    }
}

TEST_F(TaskAside, TellsOnlyWhenItTakesLong) {
    int told = 0;
    const BusyNotice notice{milliseconds(50), [&] { ++told; }};
    loop.runAside([] {}, notice);
    EXPECT_EQ(told, 0);
    loop.runAside([] { std::this_thread::sleep_for(milliseconds(300)); }, notice);
    EXPECT_EQ(told, 1);
}

TEST_F(TaskAside, IsWaitedForWhenTheProgramEndsMeanwhile) {
    bool isThrough = false;
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    loop.runAside(
        [&] {
            std::this_thread::sleep_for(milliseconds(100));
            isThrough = true;
        },
        {});
    EXPECT_TRUE(isThrough);
}

} // namespace
} // namespace tavrelion::tests
