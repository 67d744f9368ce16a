#include "core/StartConverting.h"
#include "app/support/RunFixture.h"
#include "core/EngineComponent.h"
#include "core/ProgressLoading.h"

namespace tavrelion::tests {
namespace {

using testing::HasSubstr;
using Button = ProgressView::Button;

class StartConverting : public RunFixture {};

TEST_F(StartConverting, RunsAFileToItsAcceptedCall) {
    run::StartConverting(run());
    EXPECT_EQ(script.requests.size(), 1u);
    EXPECT_EQ(journal.first(), "row 1 Converting 1");
    EXPECT_EQ(journal.last(), "default pointer");
    EXPECT_TRUE(view.buttons[Button::cmdCancel]);
    EXPECT_EQ(run().strTargetPath, "/out/report.docx");
    EXPECT_TRUE(view.isTimerOn);
}

TEST_F(StartConverting, TestsForTheEngineFirst) {
    script.isMissing = true;
    run::StartConverting(run());
    ASSERT_EQ(messageBox.messages.size(), 1u);
    EXPECT_EQ(messageBox.messages[0].text,
              "<Orvane.dll> not found.\nPlease make sure that the file exists and registered.");
    EXPECT_EQ(messageBox.messages[0].icon, UserMessages::Icon::Information);
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_TRUE(script.requests.empty());
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("liborvane.so: cannot open shared object file occured on: "));
}

TEST_F(StartConverting, AMissingEngineIsNotMentionedOnceTheRunIsToStop) {
    script.isMissing = true;
    records.flags.blnCloseRequested = true;
    run::StartConverting(run());
    EXPECT_TRUE(messageBox.messages.empty());
    EXPECT_TRUE(view.isUnloaded);
}

TEST_F(StartConverting, TheTestReleasesItsEngineAtOnce) {
    QString message = "untouched";
    bool found = false;
    run::IsComponentExists(engines, 3, message, found);
    EXPECT_TRUE(found);
    EXPECT_EQ(message, "untouched");
    EXPECT_EQ(script.enginesMade, 1);
    EXPECT_EQ(script.enginesAlive, 0);
}

TEST_F(StartConverting, AsksBeforeItReplacesADocument) {
    files.files.insert("/out/report.docx");
    yesNoDialog.answer = 1;
    run::StartConverting(run());
    EXPECT_EQ(yesNoDialog.asked, QStringList{"lblAlreadyExists"});
    EXPECT_EQ(yesNoDialog.places.front(), YesNoDialog::Place::BelowCentreOfProgress);
    EXPECT_LT(journal.indexOf("progress.show"), journal.indexOf("main.hide"));
    EXPECT_EQ(script.requests.size(), 1u);
}

TEST_F(StartConverting, ADocumentThatIsToStayEndsTheRunAndStepsTheQueue) {
    files.files.insert("/out/report.docx");
    yesNoDialog.answer = 0;
    run::StartConverting(run());
    EXPECT_TRUE(script.requests.empty());
    EXPECT_EQ(journal.mid(0, 4),
              (Journal{"row 1 Converting 1", "progress.show", "row 1 Cancelled 3", "BatchConversion advancing"}));
    EXPECT_FALSE(run().blnAdvanceQueue);
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_TRUE(records.flags.blnCloseRequested);
}

TEST_F(StartConverting, AResultBelow0RepeatsTheAttemptUntilTheUserCancels) {
    script.results = {-1};
    cancelAtYield(24); // one for the start, five for each attempt: in the midst of the fifth
    run::StartConverting(run());
    EXPECT_EQ(script.requests.size(), 5u);
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_EQ(run().intParseState, parse_state::kThrough);
}

TEST_F(StartConverting, ACancelBeforeTheFirstAttemptCallsNoEngine) {
    cancelAtYield(1);
    run::StartConverting(run());
    EXPECT_TRUE(script.requests.empty());
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(mainWindow.isShown);
}

TEST_F(StartConverting, PageNumbersAreTextUnlessTheyAreNotUsed) {
    records.job.intPageFrom = 2;
    records.job.intPageTo = 5;
    run::StartConverting(run());
    EXPECT_EQ(run().strFromText + "," + run().strToText, "2,5");
    records.job.intUseFromTo = -1;
    run::StartConverting(run());
    EXPECT_EQ(run().strFromText + "," + run().strToText, ",");
}

TEST_F(StartConverting, AnImageRunPassesTheBoundsZeroAndZero) {
    records.flags.intRunKind = run_kind::kExtractImages;
    records.job.strImageFormat = "png";
    files.files.insert("/out/report.docx");
    run::StartConverting(run());
    EXPECT_EQ(run().strFromText + "," + run().strToText, "0,0");
    EXPECT_EQ(journal.first(), "row 1 Extracting 1");
    EXPECT_EQ(records.job.intImageFormat, 4);
    EXPECT_EQ(records.settings.strConversionMethod, "1");
    EXPECT_TRUE(yesNoDialog.asked.isEmpty()) << "no collision test for images";
    EXPECT_EQ(view.status, "<lblExtractImage>");
    EXPECT_EQ(view.bar, 5);
}

TEST_F(StartConverting, AnImageRunWhoseWindowWentDownGoesBackToTheMainWindow) {
    records.flags.intRunKind = run_kind::kExtractImages;
    eventLoop.atYield[4] = [this] { run::cmdClose_click(run()); }; // after the engine call
    run::StartConverting(run());
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(mainWindow.isShown);
    EXPECT_NE(view.bar, 5);
    EXPECT_TRUE(journal.contains("default pointer"));
}

TEST_F(StartConverting, LoadingTheWindowSetsTheRunUpAndStartsIt) {
    prepareRun();
    run().blnAsyncRun = false;
    run().blnPollEnabled = false;
    run().astrStatusText.clear();
    run().intListRow = 7;
    run::Form_Load(run());
    EXPECT_TRUE(run().blnAsyncRun);
    EXPECT_TRUE(run().blnPollEnabled);
    EXPECT_EQ(run().astrStatusText, statusTexts.texts);
    EXPECT_EQ(run().intListRow, 1);
    EXPECT_EQ(journal.first(), "timer off");
    EXPECT_EQ(script.requests.size(), 1u);
}

} // namespace
} // namespace tavrelion::tests
