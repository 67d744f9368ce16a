#include "core/Staging.h"
#include "app/support/RunFixture.h"
#include "core/Attempt.h"

namespace tavrelion::tests {
namespace {

using std::chrono::milliseconds;
using testing::HasSubstr;

class StagingFolder : public RunFixture {};

TEST_F(StagingFolder, AnOldOneIsDeletedAndMadeAnew) {
    files.folders.insert(staging());
    EXPECT_EQ(run::WaitOnDeleteFolder(run(), staging()), run::Staging::Ready);
    EXPECT_EQ(journal, (Journal{"status Please wait...", "delete " + staging(), "create " + staging()}));
    EXPECT_TRUE(clock.sleeps.empty());
    EXPECT_EQ(eventLoop.yields, 0);
}

TEST_F(StagingFolder, AMissingOneIsMadeWithoutAWord) {
    EXPECT_EQ(run::WaitOnDeleteFolder(run(), staging()), run::Staging::Ready);
    EXPECT_EQ(journal, (Journal{"create " + staging()}));
}

TEST_F(StagingFolder, AnEmptyPathIsNeverReady) {
    EXPECT_EQ(run::WaitOnDeleteFolder(run(), ""), run::Staging::NotReady);
    EXPECT_TRUE(journal.isEmpty());
}

TEST_F(StagingFolder, AHeldOneIsTriedAgainAfterAHundredMilliseconds) {
    files.folders.insert(staging());
    files.failingDeletions = 2;
    EXPECT_EQ(run::WaitOnDeleteFolder(run(), staging()), run::Staging::Ready);
    EXPECT_EQ(clock.sleeps, (std::vector{milliseconds(100), milliseconds(100)}));
    EXPECT_EQ(eventLoop.yields, 2);
    EXPECT_EQ(journal.count("delete " + staging()), 3);
    EXPECT_TRUE(files.folders.count(staging()));
}

TEST_F(StagingFolder, AfterFiveSecondsItCountsAsReadyWhateverItHolds) {
    files.folders.insert(staging());
    files.failingDeletions = 1000;
    EXPECT_EQ(run::WaitOnDeleteFolder(run(), staging()), run::Staging::Ready);
    EXPECT_EQ(clock.sleeps.size(), 50u) << "4.9 seconds are still within five whole seconds, 5.0 are not";
    EXPECT_FALSE(journal.contains("create " + staging()));
}

TEST_F(StagingFolder, AFolderThatGoesByItselfWhileWaitingIsMadeAnew) {
    files.folders.insert(staging());
    files.failingDeletions = 1000;
    eventLoop.atYield[3] = [this] { files.folders.clear(); };
    EXPECT_EQ(run::WaitOnDeleteFolder(run(), staging()), run::Staging::Ready);
    EXPECT_EQ(journal.last(), "create " + staging());
}

TEST_F(StagingFolder, AStopWhileWaitingIsNotReady) {
    files.folders.insert(staging());
    files.failingDeletions = 1000;
    eventLoop.atYield[2] = [this] { records.flags.blnCloseRequested = true; };
    EXPECT_EQ(run::WaitOnDeleteFolder(run(), staging()), run::Staging::NotReady);
    EXPECT_EQ(journal.count("delete " + staging()), 2);
}

TEST_F(StagingFolder, ACancelWhileWaitingEndsTheAttemptWithoutAMessage) {
    files.folders.insert(staging());
    files.failingDeletions = 1000;
    cancelAtYield(2); // the first is after the initial stage
    attempt();
    EXPECT_TRUE(view.isUnloaded);
    EXPECT_TRUE(messageBox.messages.empty());
    EXPECT_EQ(script.enginesMade, 0);
    EXPECT_TRUE(mainWindow.isShown);
}

class StagedCopy : public RunFixture {
protected:
    void stage(const QString& source) {
        files.files = {source};
        records.job.strSourcePDF = source;
        attempt();
    }
    QString passedPath() const { return QString::fromStdString(script.requests.back().sourcePath); }
};

TEST_F(StagedCopy, ANameInCapitalsIsStagedAsItIsAndPassedInSmallLetters) {
    stage("/in/REPORT.PDF");
    EXPECT_TRUE(journal.contains("copy /in/REPORT.PDF to " + staging() + "/REPORT.PDF"));
    EXPECT_EQ(passedPath(), staging() + "/REPORT.pdf");
    EXPECT_TRUE(journal.contains("reach " + staging() + "/REPORT.PDF as " + staging() + "/REPORT.pdf"))
        << "letter case counts on some file systems";
}

TEST_F(StagedCopy, BlanksAndOtherCharactersStay) {
    stage("/in/my  report (1) ü%20.pdf");
    EXPECT_EQ(passedPath(), staging() + "/my  report (1) ü%20.pdf");
}

TEST_F(StagedCopy, TheLastPdfInThePathCounts) {
    stage("/in/a.pdf.old.pdf.bak");
    EXPECT_EQ(run().strStagedStem, staging() + "/a.pdf.old");
}

TEST_F(StagedCopy, ASourceWithoutPdfLeavesTheStemAtItsLastValue) {
    stage("/in/first.pdf");
    stage("/in/letter.txt");
    EXPECT_EQ(run().strStagedName, "letter.txt");
    EXPECT_EQ(run().strStagedStem, staging() + "/first");
    EXPECT_EQ(passedPath(), staging() + "/first.pdf");
}

TEST_F(StagedCopy, ALockedSourceIsLoggedAndTheEngineCalledOnWhatThereIs) {
    files.failsToCopy = true;
    stage("/in/report.pdf");
    EXPECT_THAT(errorLog().toStdString(),
                HasSubstr("Form Name: frmprogress, Module Name: ParsePDF\r\nthe file is locked occured on: "));
    EXPECT_EQ(script.requests.size(), 1u);
    EXPECT_EQ(passedPath(), staging() + "/report.pdf");
}

TEST_F(StagedCopy, AFolderThatCannotBeMadeIsLoggedAndTheAttemptGoesOn) {
    files.failsToCreateFolder = true;
    stage("/in/report.pdf");
    EXPECT_THAT(errorLog().toStdString(), HasSubstr("the folder cannot be made occured on: "));
    EXPECT_EQ(script.requests.size(), 1u);
}

TEST_F(StagedCopy, EachAttemptStagesTheFileAnew) {
    stage("/in/report.pdf");
    journal.clear();
    attempt();
    EXPECT_TRUE(journal.contains("delete " + staging()));
    EXPECT_TRUE(journal.contains("copy /in/report.pdf to " + staging() + "/report.pdf"));
}

} // namespace
} // namespace tavrelion::tests
