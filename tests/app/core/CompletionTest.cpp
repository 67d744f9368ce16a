#include "core/Completion.h"
#include "app/support/RunFixture.h"
#include "core/BatchFollowUp.h"
#include "core/BatchOffer.h"

namespace tavrelion::tests {
namespace {

using testing::HasSubstr;
using Button = ProgressView::Button;
using Offer = RunFollowUp::Offer;
using Place = YesNoDialog::Place;

/// The real completion over a selection that a test makes.
class Completion : public RunFixture {
protected:
    Completion() {
        view.buttons = {{Button::cmdCancel, true}, {Button::cmdClose, false}};
        run().intListRow = 1;
        mainWindow.isShown = false;
    }
    /// A selection of that many files, of which the present one is the one at the cursor.
    void select(int count, int cursor) {
        BatchQueue& queue = records.queue;
        queue.strSelectedFiles = {"/in"};
        for (int i = 1; i <= count; ++i)
            queue.strSelectedFiles << QString("file%1.pdf").arg(i);
        queue.lngSelectedBound = cursor;
        queue.strOutputFiles = QStringList(count + 1);
        queue.strFileStatus = QStringList(count + 1);
        queue.intCurrentIndex = static_cast<std::int16_t>(count - cursor - 1);
        for (int i = count; i > cursor; --i) {
            const int index = count - i;
            queue.strOutputFiles[index] = document(i);
            queue.strFileStatus[index] = "Completed";
            files.files.insert(document(i));
        }
        records.job.strOutputFile = document(cursor);
        files.files.insert(document(cursor));
    }
    void selectOne() {
        records.queue.strSelectedFiles = {"/in/report.pdf"};
        records.queue.lngSelectedBound = 0;
        records.queue.strOutputFiles = {QString()};
        records.queue.strFileStatus = {QString()};
        records.queue.intCurrentIndex = -1;
    }
    static QString document(int file) { return QString("/out/file%1.docx").arg(file); }
    QString opened(const QString& how, const QString& path) const {
        return how + ' ' + path + " in " + records.flags.strHomeFolder;
    }
    void complete() { run::ShowCompleted(run(), Offer::Allowed, shell); }

    FakeDocumentShell shell;
};

TEST_F(Completion, RecordsTheDocumentAndGoesBackToTheMainWindow) {
    selectOne();
    records.job.strPdfPassword = "secret";
    records.flags.intDialogAnswer = 1;
    complete();
    EXPECT_EQ(records.job.strWordTarget, "/out/report.docx");
    EXPECT_EQ(records.queue.strOutputFiles, QStringList{"/out/report.docx"});
    EXPECT_EQ(records.queue.intCurrentIndex, 0);
    EXPECT_EQ(records.job.strPdfPassword, "");
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    EXPECT_EQ(records.queue.lngSelectedBound, -1);
    EXPECT_EQ(mainWindow.finishedDocument, "/out/report.docx");
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_TRUE(records.flags.blnCloseRequested) << "the main window clears it before the next run";
    EXPECT_FALSE(run().blnAdvanceQueue);
    EXPECT_EQ(errorLog(), "");
}

TEST_F(Completion, OfARunThatIsToStopOnlyUnloads) {
    selectOne();
    records.flags.blnCloseRequested = true;
    complete();
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_EQ(records.queue.intCurrentIndex, -1);
    EXPECT_EQ(eventLoop.yields, 0);
}

TEST_F(Completion, WithLaunchModeZeroOffersNothing) {
    selectOne();
    view.addListRow(1, {}, 1);
    complete();
    EXPECT_TRUE(yesNoDialog.asked.isEmpty());
    EXPECT_TRUE(shell.opened.isEmpty());
    EXPECT_EQ(view.rows[0].cells.status, "Completed");
    EXPECT_EQ(view.rows[0].icon, 2);
    EXPECT_EQ(records.flags.intWordOpened, 0);
}

TEST_F(Completion, WithLaunchModeOneOffersNothingForASingleFile) {
    selectOne();
    records.settings.intLauchMs = 1;
    yesNoDialog.answer = 1;
    complete();
    EXPECT_TRUE(yesNoDialog.asked.isEmpty());
    EXPECT_TRUE(shell.opened.isEmpty());
    EXPECT_EQ(records.queue.strFileStatus, QStringList{"Completed"});
}

TEST_F(Completion, WithLaunchModeOneOffersABatchOnceAfterItsLastFile) {
    records.settings.intLauchMs = 1;
    yesNoDialog.answer = 1;
    select(3, 2);
    complete();
    EXPECT_TRUE(yesNoDialog.asked.isEmpty()) << "one file is left";
    records.flags.blnCloseRequested = false;
    view.isUnloaded = false;
    journal.clear();
    select(3, 1);
    complete();
    EXPECT_EQ(yesNoDialog.asked, QStringList{"msgDocumentGenerationComplete"});
    EXPECT_EQ(yesNoDialog.places.front(), Place::CentreOfProgress);
    EXPECT_EQ(shell.opened, (QStringList{opened("winword", document(3)), opened("winword", document(2)),
                                         opened("winword", document(1))}));
    EXPECT_EQ(records.flags.intWordOpened, 1);
    EXPECT_TRUE(view.isMinimised);
    EXPECT_TRUE(mainWindow.isMinimisedNow) << "and it stays so when the window goes";
    EXPECT_FALSE(journal.contains("main.normal"));
}

TEST_F(Completion, OfABatchAnsweredNoOpensNothing) {
    records.settings.intLauchMs = 1;
    select(2, 1);
    complete();
    EXPECT_EQ(yesNoDialog.asked.size(), 1);
    EXPECT_TRUE(shell.opened.isEmpty());
    EXPECT_EQ(records.flags.intWordOpened, 0);
    EXPECT_FALSE(view.isMinimised);
}

TEST_F(Completion, LeavesOutFailedAndMissingDocuments) {
    records.settings.intLauchMs = 1;
    yesNoDialog.answer = 1;
    select(4, 1);
    records.queue.strFileStatus[0] = ""; // failed: its path is recorded, its status is not
    files.files.erase(document(3));
    complete();
    EXPECT_EQ(shell.opened, (QStringList{opened("winword", document(2)), opened("winword", document(1))}));
}

TEST_F(Completion, NotesAWordProcessorThatHadNothingToOpen) {
    records.settings.intLauchMs = 1;
    yesNoDialog.answer = 1;
    select(2, 1);
    files.files.clear();
    complete();
    EXPECT_TRUE(shell.opened.isEmpty());
    EXPECT_EQ(records.flags.intWordOpened, 1);
}

TEST_F(Completion, WithLaunchModeTwoOffersEachDocument) {
    records.settings.intLauchMs = 2;
    yesNoDialog.answer = 1;
    view.addListRow(1, {}, 1);
    select(3, 3);
    complete();
    EXPECT_EQ(yesNoDialog.asked, QStringList{"msgDocumentGenerationComplete"});
    EXPECT_EQ(yesNoDialog.places.front(), Place::CentreOfProgress);
    EXPECT_EQ(shell.opened, QStringList{opened("winword", document(3))});
    EXPECT_EQ(view.rows[0].cells.status, "Completed");
    EXPECT_EQ(records.queue.strFileStatus, QStringList(4)) << "the status is not written in this case";
    EXPECT_EQ(records.flags.intWordOpened, 0);
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
    EXPECT_LT(journal.indexOf("main.minimise"), journal.indexOf("progress.unload"));
    EXPECT_TRUE(view.isMinimised);
    EXPECT_TRUE(view.isUnloaded);
}

TEST_F(Completion, WithLaunchModeTwoAnsweredNoStepsTheQueueAllTheSame) {
    records.settings.intLauchMs = 2;
    select(3, 3);
    complete();
    EXPECT_TRUE(shell.opened.isEmpty());
    EXPECT_FALSE(view.isMinimised);
    EXPECT_EQ(records.queue.lngSelectedBound, 2);
    EXPECT_TRUE(mainWindow.isShown);
}

TEST_F(Completion, WithoutPromptAsksNothing) {
    records.settings.intLauchMs = 2;
    yesNoDialog.answer = 1;
    selectOne();
    run::ShowCompleted(run(), Offer::Suppressed, shell);
    EXPECT_TRUE(yesNoDialog.asked.isEmpty());
    EXPECT_TRUE(shell.opened.isEmpty());
}

TEST_F(Completion, WithoutAWordProcessorOpensByTheAssociation) {
    records.settings.intLauchMs = 2;
    yesNoDialog.answer = 1;
    shell.installed = 0;
    selectOne();
    records.job.strOutputFile = "/out/my  \"new\" report.docx";
    complete();
    EXPECT_EQ(shell.opened, QStringList{opened("association", "/out/my  \"new\" report.docx")});
}

TEST_F(Completion, OfAnImageRunNeverOffersAnything) {
    for (const std::int16_t mode : {1, 2}) {
        SCOPED_TRACE(mode);
        records.flags.blnCloseRequested = false;
        view.isUnloaded = false;
        records.settings.intLauchMs = mode;
        records.flags.intRunKind = run_kind::kExtractImages;
        yesNoDialog.answer = 1;
        select(2, 1);
        complete();
        EXPECT_TRUE(yesNoDialog.asked.isEmpty());
        EXPECT_TRUE(shell.opened.isEmpty());
        EXPECT_EQ(mainWindow.finishedDocument, "") << "there is no document to point to";
        EXPECT_TRUE(view.isUnloaded);
    }
}

TEST_F(Completion, SwapsTheButtonsOfAWindowThatIsToStayAndClosesItAllTheSame) {
    records.settings.intProgressWind = 1;
    selectOne();
    complete();
    EXPECT_FALSE(view.buttons.at(Button::cmdCancel));
    EXPECT_TRUE(view.buttons.at(Button::cmdClose));
    EXPECT_TRUE(view.isUnloaded);
}

TEST_F(Completion, KeepsTheButtonsOfAWindowThatIsToGo) {
    selectOne();
    complete();
    EXPECT_TRUE(view.buttons.at(Button::cmdCancel));
    EXPECT_FALSE(view.buttons.at(Button::cmdClose));
}

TEST_F(Completion, BeforeAnySelectionIsLoggedAndGoesOn) {
    records.queue = BatchQueue();
    records.queue.lngSelectedBound = -1;
    records.queue.intCurrentIndex = -1;
    complete();
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmprogress, Module Name: ShowCompleted\r\n"
                                                    "Subscript out of range"));
    EXPECT_TRUE(view.isUnloaded);
}

TEST_F(Completion, OfADocumentThatCannotBeOpenedIsLoggedAndGoesOn) {
    records.settings.intLauchMs = 2;
    yesNoDialog.answer = 1;
    shell.failsToOpen = true;
    selectOne();
    complete();
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Module Name: ShowCompleted\r\nthe shell is gone occured on: "));
    EXPECT_TRUE(view.isMinimised) << "the next statement runs";
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(messageBox.messages.empty());
}

/// checkMultConComplete looks at the document one below the bound and at the selection's first file.
class MultiComplete : public Completion {
protected:
    bool isComplete(const QStringList& outputs) {
        records.queue.strOutputFiles = outputs;
        run().blnMultiComplete = false;
        run::checkMultConComplete(run());
        return run().blnMultiComplete;
    }
};

TEST_F(MultiComplete, WhenTheLastDocumentHasTheFirstFilesName) {
    select(2, 1);
    EXPECT_TRUE(isComplete({"/out/file2.docx", "/out/file1.docx", ""}));
    EXPECT_FALSE(isComplete({"/out/file2.docx", "", ""})) << "nothing is recorded there yet";
    EXPECT_FALSE(isComplete({"/out/file1.docx", "/out/file2.docx", ""})) << "the order of completion decides";
    EXPECT_FALSE(isComplete({"/out/file2.docx", "/out/File1.docx", ""})) << "letter case counts";
    EXPECT_TRUE(isComplete({"/out/file1.docx", "/other.folder/file1.rtf", ""})) << "two outputs of one stem";
}

TEST_F(MultiComplete, CutsAtTheLastPoint) {
    select(2, 1);
    records.queue.strSelectedFiles[1] = "v1.2.pdf";
    EXPECT_TRUE(isComplete({"/out/file2.docx", "/out/v1.2.docx", ""}));
    EXPECT_FALSE(isComplete({"/out/file2.docx", "/out/v1.docx", ""}));
}

TEST_F(MultiComplete, NeverByASingleFile) {
    selectOne();
    EXPECT_FALSE(isComplete({"/in/report.docx"}));
    EXPECT_EQ(errorLog(), "");
}

TEST_F(MultiComplete, WithUndimensionedResultsIsLogged) {
    select(2, 1);
    EXPECT_FALSE(isComplete({}));
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("Form Name: frmProgress, Module Name: checkMultConComplete\r\n"));
}

/// The offer on the ways of failure and cancel.
class BatchOffer : public Completion {};

TEST_F(BatchOffer, WaitsForTheWholeBatch) {
    select(3, 3);
    run::LaunchMsWordForMultipleFiles(run(), shell);
    EXPECT_TRUE(yesNoDialog.asked.isEmpty());
}

TEST_F(BatchOffer, OpensTheFinishedFilesAndMinimisesNothing) {
    select(3, 1);
    records.queue.strOutputFiles[2] = document(1); // the failed last file: recorded, but not completed
    yesNoDialog.answer = 1;
    run::LaunchMsWordForMultipleFiles(run(), shell);
    EXPECT_EQ(yesNoDialog.asked, QStringList{"msgDocumentGenerationComplete"});
    EXPECT_EQ(yesNoDialog.places.front(), Place::BelowCentreOfProgress);
    EXPECT_EQ(shell.opened, (QStringList{opened("winword", document(3)), opened("winword", document(2))}));
    EXPECT_EQ(records.flags.intWordOpened, 1);
    EXPECT_FALSE(view.isMinimised);
    EXPECT_FALSE(mainWindow.isMinimisedNow);
}

TEST_F(BatchOffer, FailsIntoTheLogAndEnds) {
    select(3, 1);
    records.queue.strOutputFiles[2] = document(1);
    yesNoDialog.answer = 1;
    shell.failsToOpen = true;
    run::LaunchMsWordForMultipleFiles(run(), shell);
    EXPECT_EQ(errorLog().count("Module Name: LaunchMsWordForMultipleFiles\r\n"), 1);
}

TEST_F(BatchOffer, ComesAfterACancelOnTheLastFile) {
    select(2, 1);
    records.settings.intLauchMs = 1;
    yesNoDialog.answer = 1;
    BatchFollowUp batch(shell);
    const RunPorts ports{records,   mainWindow, messageBox, yesNoDialog, passwordPrompt, statusTexts,
                         eventLoop, clock,      files,      engines,     batch,          windows};
    ProgressRun real(ports, view);
    view.run = &real;
    run::cmdCancel_click(real);
    EXPECT_EQ(yesNoDialog.asked, (QStringList{"lblCancelConversion", "msgDocumentGenerationComplete"}));
    EXPECT_EQ(records.queue.strOutputFiles[1], document(1)) << "the cancelled file's path is stored";
    EXPECT_EQ(records.queue.strFileStatus[1], "");
    EXPECT_EQ(shell.opened, QStringList{opened("winword", document(2))});
    EXPECT_EQ(records.job.strSourcePDF, " ") << "the queue ran out";
    view.run = &run();
}

} // namespace
} // namespace tavrelion::tests
