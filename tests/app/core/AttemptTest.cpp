#include "core/Attempt.h"
#include "app/support/RunFixture.h"

namespace tavrelion::tests {
namespace {

using testing::HasSubstr;
using Button = ProgressView::Button;

class Attempt : public RunFixture {};

TEST_F(Attempt, WalksThroughItsStagesInOrder) {
    attempt();
    const QString copy = staging() + "/report.pdf";
    EXPECT_EQ(journal, (Journal{"progress.show", "main.hide", "status <lblInitConversion>", "bar 1", "main.hide",
                                "create " + staging(), "copy /in/report.pdf to " + copy, "status <lblParsePDF>",
                                "bar 2", "status Initiated asynchronous conversion.", "timer on", "status <lblScanPDF>",
                                "bar 3", "bar 4"}));
    EXPECT_TRUE(run().blnRunStarted);
    EXPECT_EQ(run().strStagedName, "report.pdf");
    EXPECT_EQ(run().strWorkFolder, records.flags.strHomeFolder);
    EXPECT_EQ(run().strStagedPath, copy);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(Attempt, AMissingSourceEndsTheRunWithAMessage) {
    files.files.clear();
    attempt();
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_EQ(eventLoop.yields, 1);
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].text, "The selected PDF file doesn't exist.");
    EXPECT_EQ(messageBox.messages[0].title, "Tavrelion-PDF to Word Converter");
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Critical);
    EXPECT_EQ(journal.last(), "message") << "the main window stands before the message";
    EXPECT_TRUE(script.requests.empty());
}

TEST_F(Attempt, AnEmptySourceLeavesTheWindowOpenAtStageOne) {
    records.job.strSourcePDF.clear();
    attempt();
    EXPECT_TRUE(view.isShown);
    EXPECT_FALSE(view.isUnloaded);
    EXPECT_EQ(view.bar, 1);
    EXPECT_FALSE(mainWindow.isShown);
    EXPECT_TRUE(messageBox.messages.empty());
    EXPECT_EQ(script.enginesMade, 0);
}

TEST_F(Attempt, ARunThatIsToStopAlreadyShowsNothingAndUnloads) {
    records.flags.blnCloseRequested = true;
    attempt();
    EXPECT_FALSE(journal.contains("progress.show"));
    EXPECT_TRUE(view.statuses.isEmpty());
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_EQ(script.enginesMade, 0);
}

TEST_F(Attempt, Result0StartsPolling) {
    script.results = {0};
    attempt();
    EXPECT_EQ(run().intParseState, parse_state::kThrough);
    EXPECT_TRUE(view.isTimerOn);
    EXPECT_TRUE(view.statuses.contains("Initiated asynchronous conversion."));
    EXPECT_EQ(script.enginesAlive, 1);
    EXPECT_EQ(view.bar, 4);
    EXPECT_FALSE(records.flags.blnCloseRequested);
}

TEST_F(Attempt, Result0OfASynchronousRunIsTheFinishedFile) {
    run().blnAsyncRun = false;
    attempt();
    EXPECT_TRUE(view.statuses.contains("File converted successfully!"));
    EXPECT_FALSE(view.isTimerOn);
    EXPECT_EQ(run().intParseState, parse_state::kThrough);
}

TEST_F(Attempt, Result15TellsOfTheSharingViolation) {
    script.results = {15};
    attempt();
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].text,
              "Cannot convert with the specified file name.\nThere has been a sharing violation.\n"
              "The source or destination file may be in use.\nTry saving with a different file name.");
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Critical);
    EXPECT_EQ(run().intParseState, parse_state::kFailed);
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_EQ(view.status, "Failed to Convert File.");
    EXPECT_EQ(view.bar, 2) << "neither the scan nor the end of the attempt is shown";
}

TEST_F(Attempt, EveryOtherResultFrom1UpIsAFailureThatEndsTheRun) {
    for (const std::int32_t result : {1, 2, 14, 16, 19, 4711}) {
        SCOPED_TRACE(result);
        records.flags.blnCloseRequested = false;
        prepareRun();
        script.results = {result};
        attempt();
        EXPECT_EQ(run().intParseState, parse_state::kFailed);
        EXPECT_TRUE(records.flags.blnCloseRequested);
        EXPECT_EQ(view.status, "Failed to Convert File.");
        EXPECT_FALSE(run().objEngine);
        EXPECT_TRUE(view.areStageLabelsHidden);
        EXPECT_FALSE(view.buttons[Button::cmdCancel]);
        EXPECT_TRUE(view.buttons[Button::cmdViewLog]);
        EXPECT_TRUE(messageBox.messages.empty());
        EXPECT_FALSE(view.isUnloaded) << "the window stays until the user acts";
    }
}

TEST_F(Attempt, AResultBelow0IsAFailureThatLeavesTheRunOpen) {
    script.results = {-1};
    attempt();
    EXPECT_EQ(run().intParseState, parse_state::kStart);
    EXPECT_FALSE(records.flags.blnCloseRequested);
    EXPECT_TRUE(view.statuses.contains("Failed to Convert File."));
    EXPECT_FALSE(run().objEngine);
    EXPECT_EQ(view.bar, 4);
}

TEST_F(Attempt, AFailedImageRunSaysSo) {
    records.flags.intRunKind = run_kind::kExtractImages;
    records.settings.intLauchMs = 1;
    script.results = {3};
    attempt();
    EXPECT_EQ(view.status, "Image Extraction has failed.");
    EXPECT_FALSE(journal.contains("LaunchMsWordForMultipleFiles"));
}

TEST_F(Attempt, AFailedFileOfABatchIsRecordedAndTheBatchOffered) {
    records.settings.intLauchMs = 1;
    records.queue.strOutputFiles = {"", ""};
    records.queue.intCurrentIndex = 0;
    script.results = {1};
    attempt();
    EXPECT_EQ(records.queue.intCurrentIndex, 1);
    EXPECT_EQ(records.queue.strOutputFiles, (QStringList{"", "/out/report.docx"}));
    EXPECT_TRUE(journal.contains("LaunchMsWordForMultipleFiles"));
}

TEST_F(Attempt, AnUndimensionedResultListIsNotTouchedUnlessTheBatchIsToBeOffered) {
    script.results = {1};
    attempt();
    EXPECT_TRUE(records.queue.strOutputFiles.isEmpty());
    EXPECT_EQ(records.queue.intCurrentIndex, 0);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(Attempt, AnUndimensionedResultListFailsIntoTheLogWhenTheBatchIsToBeOffered) {
    records.settings.intLauchMs = 1;
    script.results = {1};
    attempt();
    EXPECT_THAT(errorLog().toStdString(),
                HasSubstr("Form Name: frmprogress, Module Name: ParsePDF\r\nSubscript out of range"));
    EXPECT_TRUE(journal.contains("LaunchMsWordForMultipleFiles")) << "the next statement runs";
    EXPECT_TRUE(records.flags.blnCloseRequested);
}

TEST_F(Attempt, AnUnloadedWindowGetsNoFailureText) {
    records.settings.intLauchMs = 1;
    script.results = {1};
    script.whileConverting = [this] { run().blnFormUnloaded = true; };
    attempt();
    EXPECT_FALSE(view.statuses.contains("Failed to Convert File."));
    EXPECT_FALSE(journal.contains("LaunchMsWordForMultipleFiles"));
    EXPECT_TRUE(view.areStageLabelsHidden);
    EXPECT_EQ(run().intParseState, parse_state::kFailed);
}

TEST_F(Attempt, AnEngineThatThrowsIsLoggedAndCountsAsAFailure) {
    script.failsToConvert = true;
    attempt();
    EXPECT_THAT(errorLog().toStdString(),
                HasSubstr("Form Name: frmprogress, Module Name: ParsePDF\r\nthe engine fell over occured on: "));
    EXPECT_FALSE(view.isTimerOn);
    EXPECT_EQ(view.status, "Failed to Convert File.");
    EXPECT_TRUE(records.flags.blnCloseRequested);
}

TEST_F(Attempt, AnErrorStopsTheTimerAndTheNextStatementRuns) {
    records.flags.intRunKind = run_kind::kExtractImages;
    view.failsToSetBar = true;
    eventLoop.atYield[1] = [this] { EXPECT_FALSE(view.isTimerOn); };
    attempt();
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("the bar is broken occured on: "));
    EXPECT_EQ(script.requests.size(), 1u);
    EXPECT_EQ(run().intParseState, parse_state::kThrough);
}

TEST_F(Attempt, AnImageRunPollsFromBeforeTheEngineCall) {
    records.flags.intRunKind = run_kind::kExtractImages;
    run().blnAsyncRun = false;
    run().blnPollEnabled = false;
    bool wasPolling = false;
    script.whileConverting = [&] { wasPolling = view.isTimerOn; };
    attempt();
    EXPECT_TRUE(wasPolling);
    EXPECT_TRUE(run().blnAsyncRun);
    EXPECT_TRUE(run().blnPollEnabled);
}

TEST_F(Attempt, ModeFiveGoesPastTheEngine) {
    records.settings.intReconstMode = 5;
    attempt();
    EXPECT_EQ(script.enginesMade, 0);
    EXPECT_EQ(view.bar, 4);
    EXPECT_EQ(run().intParseState, parse_state::kStart);
}

TEST_F(Attempt, EachCallGetsANewEngine) {
    attempt();
    attempt();
    EXPECT_EQ(script.enginesMade, 2);
    EXPECT_EQ(script.enginesAlive, 1);
}

TEST_F(Attempt, AMessageAboutAnAbnormalEndIsDefinedAndNeverShown) {
    EXPECT_STREQ(
        run::kTerminatedAbnormallyMessage,
        "Tavrelion application seems to have terminated abnormally. Close all instances of Winword and start the "
        "Tavrelion application again.");
}

struct CancelRow {
    int yield;
    std::size_t engineCalls;
    int bar;
    const char* why;
};

class AttemptCancelled : public RunFixture, public testing::WithParamInterface<CancelRow> {};

TEST_P(AttemptCancelled, EndsTheRunAndBringsTheMainWindowBack) {
    const CancelRow& row = GetParam();
    SCOPED_TRACE(row.why);
    cancelAtYield(row.yield);
    attempt();
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_EQ(script.requests.size(), row.engineCalls);
    EXPECT_EQ(script.enginesAlive, 0) << "the window's unloading releases the engine";
    EXPECT_EQ(view.bar, row.bar);
    EXPECT_FALSE(view.isTimerOn);
    EXPECT_EQ(journal.count("GetNextFile"), 1);
    EXPECT_GE(eventLoop.yields, row.yield);
}

// The yields of an attempt on a clean staging folder; the bar is where the cancel found it.
INSTANTIATE_TEST_SUITE_P(AtEachYield, AttemptCancelled,
                         testing::Values(CancelRow{1, 0, 1, "after the first stage"},
                                         CancelRow{2, 0, 2, "after staging"},
                                         CancelRow{3, 1, 2, "after the engine call"},
                                         CancelRow{4, 1, 3, "before the end of the attempt"},
                                         CancelRow{5, 1, 4, "at the end of the attempt"}));

} // namespace
} // namespace tavrelion::tests
