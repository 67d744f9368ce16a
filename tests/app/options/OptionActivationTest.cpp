#include "OptionFixture.h"

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class OptionActivation : public OptionFixture {};

TEST_F(OptionActivation, ShowsTheSettings) {
    records.settings.intLanguageID = 0;
    records.settings.intOutputFormat = 2;
    records.settings.intReconstMode = 4;
    records.settings.strConversionMethod = "1";
    records.settings.intUseWiz = 0;
    open();
    EXPECT_EQ(list("cboUserInterfaceLang").listIndex(), 0);
    EXPECT_EQ(list("cboLaunchMSWord").listIndex(), 2);
    EXPECT_EQ(list("cboOutputFileformat").listIndex(), 2);
    EXPECT_EQ(list("cboUseWizard").listIndex(), 0);
    EXPECT_EQ(list("cboReconstructionMode").listIndex(), 4);
    EXPECT_EQ(list("cboCharSpacingType").listIndex(), 1);
    EXPECT_EQ(list("cboRecoverImages").listIndex(), 1);
    EXPECT_EQ(list("cboConversionMethod").listIndex(), 1);
    EXPECT_EQ(items("cboUserInterfaceLang").size(), 9);
    EXPECT_EQ(part<QPushButton>("cmdBrwLogFile").text(), "...");
    EXPECT_EQ(part<QPushButton>("cmdBrwDestiFolder").text(), "...");
    EXPECT_EQ(box("txtLogPath"), "/logs/old.log");
}

TEST_F(OptionActivation, TheLoadRefreshesTheLogPathFlag) {
    records.settings.strLogPathFlag = "3";
    open();
    EXPECT_EQ(records.settings.intLogPath, 3);
}

TEST_F(OptionActivation, AnEmptyLogPathBecomesTheHomeFolders) {
    records.settings.strLogPath = "  ";
    open();
    EXPECT_EQ(records.settings.strLogPath, path("tavrelion.log"));
    EXPECT_EQ(box("txtLogPath"), path("tavrelion.log"));
}

TEST_F(OptionActivation, TakesThePageChoiceFromTheMainWindow) {
    mainWindow.allPages = false;
    mainWindow.fromTo = true;
    open();
    EXPECT_EQ(list("cboConvertAllPages").listIndex(), 1);
    EXPECT_EQ(records.settings.intConvertFrom, 1);
    window->hide();
    mainWindow.allPages = true;
    window->showForm();
    EXPECT_EQ(list("cboConvertAllPages").listIndex(), 0);
    EXPECT_EQ(records.settings.intConvertFrom, 0);
}

TEST_F(OptionActivation, HoldsAFolderInTheOutputPathWhileItIsOpen) {
    for (const char* file : {"/out/report.doc", "/out/report.RTF", "/out/report.docx"}) {
        records.job.strOutputFile = file;
        open();
        EXPECT_EQ(records.job.strOutputFile, "/out/");
        EXPECT_EQ(box("txtShow"), "/out/");
        EXPECT_EQ(mainWindow.outputBox, "/out/report.doc");
        window->hide();
    }
    records.job.strOutputFile = "/pictures";
    window->showForm();
    EXPECT_EQ(box("txtShow"), "/pictures") << "another extension stays";
}

TEST_F(OptionActivation, ShowsTheRecentFolderWithoutAnOutput) {
    mainWindow.outputBox = " ";
    open();
    EXPECT_EQ(box("txtShow"), "/recent");
    EXPECT_EQ(records.job.strOutputFile, "/out/report.doc");
}

TEST_F(OptionActivation, PassesOverWhatFails) {
    failsToFindWord = true;
    records.settings.intLanguageID = 3;
    EXPECT_NO_THROW(open());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(list("cboUserInterfaceLang").listIndex(), 3);
    EXPECT_EQ(list("cboReconstructionMode").listIndex(), 3);
    EXPECT_EQ(box("txtShow"), "/out/");
    EXPECT_EQ(box("txtLogPath"), "/logs/old.log");
    EXPECT_EQ(errorLog(), "");
}

TEST_F(OptionActivation, AnOldWordProcessorHasNoDocx) {
    wordYear = 2003;
    records.settings.intOutputFormat = 2;
    open();
    EXPECT_EQ(items("cboOutputFileformat").size(), 2);
    EXPECT_EQ(records.settings.intOutputFormat, 0);
    EXPECT_EQ(list("cboOutputFileformat").listIndex(), 0);
    window->hide();
    wordYear = 2007;
    window->showForm();
    EXPECT_EQ(items("cboOutputFileformat").size(), 3) << "each activation fills the list anew";
}

} // namespace
} // namespace tavrelion::tests
