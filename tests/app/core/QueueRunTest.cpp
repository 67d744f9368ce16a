#include "app/support/RunFixture.h"
#include "core/BatchFollowUp.h"
#include "core/Polling.h"
#include "core/ProgressLoading.h"
#include "core/StartConverting.h"

namespace tavrelion::tests {
namespace {

using testing::HasSubstr;
using Text = MainView::Text;
using Button = ProgressView::Button;

/// Whole runs of a selection of two files with what follows them; the second file is worked first.
class QueueRun : public RunFixture {
protected:
    QueueRun() {
        BatchQueue& queue = records.queue;
        queue.strSelectedFiles = {"/in", "one.pdf", "two.pdf"};
        queue.lngSelectedBound = 2;
        queue.strOutputFiles = queue.strFileStatus = QStringList(3);
        queue.intCurrentIndex = -1;
        records.settings.intOutputPath = 2;
        records.job.strSourcePDF = "/in/two.pdf";
        records.job.strOutputFile = "/in/two.docx";
        for (const QString name : {"/in/one.pdf", "/in/two.pdf"}) {
            files.files.insert(name);
            files.sizes[name] = 1024;
        }
        script.statuses = {{11, 0, 0, 1}};
    }
    /// A new window's run of the job in the records, as a command of the main window starts it.
    ProgressRun& start() {
        const RunPorts ports{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, statusTexts,
                             eventLoop, clock,      files,      engines,     batch,          windows};
        progressRun = std::make_unique<ProgressRun>(ports, view);
        view.run = progressRun.get();
        view.isUnloaded = false;
        records.flags.blnCloseRequested = false;
        run::Form_Load(run());
        return run();
    }
    void startAndFinish() { run::Timer1_Timer(start()); }

    FakeDocumentShell shell;
    BatchFollowUp batch{shell};
};

TEST_F(QueueRun, OneFileIsOneRun) {
    startAndFinish();
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_EQ(records.job.strSourcePDF, "/in/one.pdf");
    EXPECT_EQ(mainWindow.banner, MainView::Banner::lblBatchInProcess);
    EXPECT_EQ(script.requests.size(), 1u) << "the user starts the next one";
    startAndFinish();
    EXPECT_EQ(records.job.strSourcePDF, "");
    EXPECT_EQ(mainWindow.banner, MainView::Banner::lblPlzBrowse);
    EXPECT_EQ(records.queue.strOutputFiles, (QStringList{"/in/two.docx", "/in/one.docx", ""}));
    EXPECT_EQ(records.queue.intCurrentIndex, 1);
    EXPECT_EQ(script.requests[0].flags & orvane::flag::kLaterFileOfSelection, 0);
    EXPECT_NE(script.requests[1].flags & orvane::flag::kLaterFileOfSelection, 0);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(QueueRun, OneTargetForAllBringsTheReplaceQuestionForTheSecondFile) {
    records.settings.intOutputPath = 1;
    startAndFinish();
    EXPECT_TRUE(yesNoDialog.asked.isEmpty());
    files.files.insert("/in/two.docx"); // what the engine wrote
    yesNoDialog.answer = 1;
    startAndFinish();
    EXPECT_EQ(yesNoDialog.asked, QStringList{"lblAlreadyExists"});
    EXPECT_EQ(script.requests[1].targetPath, "/in/two.docx");
}

TEST_F(QueueRun, ADocumentThatIsToStayStepsTheQueueWithNothingConverted) {
    files.files.insert("/in/two.docx");
    start();
    EXPECT_TRUE(script.requests.empty());
    EXPECT_EQ(records.queue.lngSelectedBound, 1);
    EXPECT_EQ(records.job.strSourcePDF, "/in/one.pdf");
    EXPECT_TRUE(view.isUnloaded);
}

TEST_F(QueueRun, ADocumentThatIsToStayEndsTheRunOfAnOnlyFile) {
    records.queue.strSelectedFiles = {"/in/two.pdf"};
    records.queue.lngSelectedBound = 0;
    files.files.insert("/in/two.docx");
    start();
    EXPECT_TRUE(script.requests.empty());
    EXPECT_EQ(records.queue.lngSelectedBound, -1);
    EXPECT_EQ(records.job.strSourcePDF, "");
}

TEST_F(QueueRun, AFailedFileIsLoadedAgainAndTheLogStepsPastIt) {
    script.statuses = {{2, 0, 0, 2}};
    run::Timer1_Timer(start());
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
    EXPECT_EQ(records.job.strSourcePDF, "/in/two.pdf");
    EXPECT_FALSE(view.isUnloaded) << "the window stays until the user acts";
    EXPECT_FALSE(view.buttons.at(Button::cmdCancel));
    EXPECT_TRUE(view.buttons.at(Button::cmdViewLog));
    run::cmdViewLog_click(run());
    EXPECT_EQ(records.queue.lngSelectedBound, 1);
    EXPECT_EQ(records.job.strSourcePDF, "/in/one.pdf");
    EXPECT_FALSE(view.buttons.at(Button::cmdViewLog));
    EXPECT_TRUE(view.buttons.at(Button::cmdClose));
    run::cmdClose_click(run());
    EXPECT_TRUE(view.isUnloaded);
}

TEST_F(QueueRun, ACancelledFileIsSteppedOver) {
    yesNoDialog.answer = 1;
    run::cmdCancel_click(start());
    EXPECT_EQ(records.queue.lngSelectedBound, 1);
    EXPECT_EQ(records.job.strSourcePDF, "/in/one.pdf");
    EXPECT_EQ(mainWindow.banner, MainView::Banner::lblBatchInProcess);
    EXPECT_FALSE(mainWindow.buttons.at(MainView::Button::cmdBrowse));
    EXPECT_EQ(records.queue.strOutputFiles, QStringList(3)) << "recorded only where the batch is offered";
    yesNoDialog.answer = 1;
    run::cmdCancel_click(start());
    EXPECT_EQ(records.job.strSourcePDF, " ") << "the queue ran out";
    EXPECT_TRUE(mainWindow.buttons.at(MainView::Button::cmdBrowse));
}

TEST_F(QueueRun, ImagesOfASelectionAreExtractedFileByFile) {
    records.flags.intRunKind = run_kind::kExtractImages;
    records.job.strImageFolder = "/pictures";
    startAndFinish();
    EXPECT_EQ(script.requests[0].targetPath, "/pictures");
    EXPECT_EQ(records.job.strSourcePDF, "/in/one.pdf");
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_EQ(view.bar, 10);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(QueueRun, AnErrorAtLoadingIsLoggedAndTheRunGoesOn) {
    statusTexts.isBroken = true;
    start();
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmprogress, Module Name: Form_Load\r\n"));
    EXPECT_EQ(script.requests.size(), 1u);
}

TEST_F(QueueRun, AnErrorOfTheRunsOpeningIsLoggedAndTheRunGoesOn) {
    records.flags.intRunKind = run_kind::kExtractImages;
    view.failsToSetBar = true;
    start();
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmprogress, Module Name: StartConverting\r\n"
                                                    "the bar is broken occured on: "));
    EXPECT_EQ(script.requests.size(), 1u);
}

TEST_F(QueueRun, AnErrorOfTheStageDisplayIsLoggedUnderItsOwnName) {
    view.failsToSetStatus = true;
    start();
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Module Name: DisplayProgressFormCaptions\r\n"));
    EXPECT_EQ(script.requests.size(), 1u);
}

TEST_F(QueueRun, ErrorsOnTheWaysOutAreLoggedAndTheNextStatementRuns) {
    start();
    view.failsToStopTimer = true;
    mainWindow.failsToShow = true;
    run::cmdClose_click(run());
    EXPECT_TRUE(view.isUnloaded);
    for (const char* name : {"cmdClose_click", "Form_QueryUnload", "Form_Unload"})
        EXPECT_THAT(errorLog().toStdString(),
                    HasSubstr(std::string("Form Name: frmprogress, Module Name: ") + name + "\r\n"));
    EXPECT_TRUE(journal.contains("main.normal"));
}

} // namespace
} // namespace tavrelion::tests
