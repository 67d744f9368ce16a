#include "app/support/RunFixture.h"
#include "core/ProgressLoading.h"

namespace tavrelion::tests {
namespace {

using testing::HasSubstr;
using Button = ProgressView::Button;

class Leaving : public RunFixture {
protected:
    Leaving() {
        run().objEngine = engines.create();
        view.isTimerOn = true;
        mainWindow.isShown = false;
    }
};

TEST_F(Leaving, CancelPausesPollingWhileTheQuestionIsOpen) {
    bool wasPolling = true;
    yesNoDialog.whileOpen = [&] { wasPolling = view.isTimerOn; };
    run::cmdCancel_click(run());
    EXPECT_FALSE(wasPolling);
    EXPECT_EQ(yesNoDialog.asked, QStringList{"lblCancelConversion"});
    EXPECT_TRUE(view.isTimerOn) << "No resumes polling";
    EXPECT_TRUE(run().objEngine);
    EXPECT_FALSE(view.isUnloaded);
}

TEST_F(Leaving, CancelAnsweredYesStopsTheEngineAndBringsTheMainWindowBack) {
    yesNoDialog.answer = 1;
    run::cmdCancel_click(run());
    EXPECT_EQ(script.cancels, 1);
    EXPECT_EQ(script.enginesAlive, 0);
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_TRUE(mainWindow.buttons[MainView::Button::cmdBrowse]);
    EXPECT_EQ(mainWindow.banner, MainView::Banner::lblPlzBrowse);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_LT(journal.indexOf("GetNextFile"), journal.indexOf("progress.unload"));
    EXPECT_EQ(eventLoop.yields, 3) << "after DoCancel, after unloading, at the end";
}

TEST_F(Leaving, AnEngineThatDoesNotStopIsLoggedAndTheRunEndsAllTheSame) {
    script.failsToCancel = true;
    yesNoDialog.answer = 1;
    run::cmdCancel_click(run());
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmprogress, Module Name: cmdCancel_click\r\n"
                                                    "the engine does not stop occured on: "));
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_EQ(script.enginesAlive, 0);
}

TEST_F(Leaving, ACancelledFileOfABatchIsRecordedBeforeTheOthersAreOffered) {
    records.settings.intLauchMs = 1;
    records.queue.strOutputFiles = {"/out/a.docx", ""};
    yesNoDialog.answer = 1;
    run::cmdCancel_click(run());
    EXPECT_EQ(records.queue.strOutputFiles[1], "/out/report.docx");
    EXPECT_LT(journal.indexOf("LaunchMsWordForMultipleFiles"), journal.indexOf("GetNextFile"));
}

TEST_F(Leaving, CloseUnloadsWithoutAQuestionAndWithoutStoppingTheEngine) {
    run::cmdClose_click(run());
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_FALSE(view.isTimerOn);
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(messageBox.questions.isEmpty());
    EXPECT_EQ(script.cancels, 0);
    EXPECT_EQ(script.enginesAlive, 0);
}

TEST_F(Leaving, TheCloseBoxAsksAndNoGoesOnAsBefore) {
    bool cancel = false;
    run::Form_QueryUnload(run(), cancel, UnloadMode::ControlMenu);
    EXPECT_EQ(messageBox.questions, QStringList{"Do you want to close Tavrelion-PDF to Word Converter?"});
    EXPECT_TRUE(cancel);
    EXPECT_TRUE(view.isTimerOn);
    EXPECT_FALSE(records.flags.blnCloseRequested);
    EXPECT_EQ(windows.windows[0]->unloads, 0);
}

TEST_F(Leaving, NoOnARunThatIsNotAsynchronousLeavesTheStopFlag) {
    run().blnAsyncRun = false;
    bool cancel = false;
    run::Form_QueryUnload(run(), cancel, UnloadMode::ControlMenu);
    EXPECT_TRUE(cancel);
    EXPECT_FALSE(view.isTimerOn);
    EXPECT_TRUE(records.flags.blnCloseRequested);
}

TEST_F(Leaving, YesAtTheCloseBoxUnloadsTheWholeApplicationAndLeavesTheEngineRunning) {
    messageBox.answer = UserMessages::Answer::Yes;
    bool cancel = false;
    run::Form_QueryUnload(run(), cancel, UnloadMode::ControlMenu);
    EXPECT_FALSE(cancel);
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_EQ(windows.windows[0]->unloads, 1);
    EXPECT_EQ(windows.windows[1]->unloads, 1);
    EXPECT_EQ(script.cancels, 0);
}

TEST_F(Leaving, ACloseByTheProgramOrTheSystemAsksNothing) {
    for (const auto mode : {UnloadMode::Code, UnloadMode::SystemShutdown}) {
        bool cancel = false;
        run::Form_QueryUnload(run(), cancel, mode);
        EXPECT_FALSE(cancel);
    }
    EXPECT_TRUE(messageBox.questions.isEmpty());
    EXPECT_TRUE(records.flags.blnCloseRequested);
}

TEST_F(Leaving, UnloadingBringsTheMainWindowBackAtItsNormalSize) {
    run::Form_Unload(run());
    EXPECT_FALSE(run().blnAsyncRun);
    EXPECT_TRUE(run().blnFormUnloaded);
    EXPECT_EQ(journal, (Journal{"main.show", "main.normal"}));
}

TEST_F(Leaving, AMinimisedMainWindowStaysMinimised) {
    mainWindow.isMinimisedNow = true;
    run::Form_Unload(run());
    EXPECT_EQ(journal, (Journal{"main.show"}));
}

class ViewLog : public RunFixture {};

TEST_F(ViewLog, ShowsTheLogFileAndOffersToClose) {
    files.files.insert(records.settings.strLogPath);
    files.texts[records.settings.strLogPath] = "what the engine wrote";
    records.flags.blnCloseRequested = true;
    run::cmdViewLog_click(run());
    EXPECT_EQ(view.log, "what the engine wrote");
    EXPECT_TRUE(view.buttons[Button::cmdClose]);
    EXPECT_FALSE(view.buttons[Button::cmdViewLog]);
    EXPECT_TRUE(journal.contains("BatchConversion advancing"));
    EXPECT_FALSE(records.flags.blnCloseRequested);
}

TEST_F(ViewLog, AMissingLogFileGivesAMessageAndTheWindowCanBeClosed) {
    run::cmdViewLog_click(run());
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].text, "Log file does not exists. Please check the Log file path.");
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Exclamation);
    EXPECT_TRUE(view.buttons[Button::cmdClose]);
}

TEST_F(ViewLog, AWizardSettingOutside0And1SkipsTheQueue) {
    records.settings.intUseWiz = 2;
    records.flags.blnCloseRequested = true;
    run::cmdViewLog_click(run());
    EXPECT_FALSE(journal.contains("BatchConversion advancing"));
    EXPECT_TRUE(records.flags.blnCloseRequested);
}

} // namespace
} // namespace tavrelion::tests
