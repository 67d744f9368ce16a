#include "OptionFixture.h"

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class OptionLeaving : public OptionFixture {};

TEST_F(OptionLeaving, WithoutAWordProcessorTheFirstFormatIsGoneAndOkStoresRtf) {
    wordInstalled = 0;
    records.settings.intOutputFormat = 2;
    open();
    EXPECT_EQ(items("cboOutputFileformat").size(), 2);
    EXPECT_EQ(list("cboOutputFileformat").listIndex(), 1);
    click("cmdOK");
    EXPECT_EQ(records.settings.intOutputFormat, 1) << "whatever the list shows";
}

TEST_F(OptionLeaving, TextOnlyModesGreyTheListsThatOkReadsEvenSo) {
    open();
    for (const int mode : {1, 2}) {
        list("cboReconstructionMode").setListIndex(mode);
        EXPECT_FALSE(list("cboRecoverImages").isEnabled());
        EXPECT_FALSE(list("cboCharSpacingType").isEnabled());
    }
    list("cboRecoverImages").setListIndex(0);
    list("cboCharSpacingType").setListIndex(0);
    click("cmdOK");
    EXPECT_EQ(records.settings.intReconstMode, 2);
    EXPECT_EQ(records.settings.intRecoverImg, 0);
    EXPECT_EQ(records.settings.intCharSpac, 0);
    window->showForm();
    EXPECT_FALSE(list("cboRecoverImages").isEnabled()) << "a change by code counts";
    list("cboReconstructionMode").setListIndex(3);
    EXPECT_TRUE(list("cboRecoverImages").isEnabled());
    EXPECT_TRUE(list("cboCharSpacingType").isEnabled());
}

TEST_F(OptionLeaving, OkStoresTheListsAndSaves) {
    open();
    list("cboLaunchMSWord").setListIndex(0);
    list("cboOutputFileformat").setListIndex(1);
    list("cboUseWizard").setListIndex(0);
    list("cboReconstructionMode").setListIndex(0);
    list("cboCharSpacingType").setListIndex(0);
    list("cboRecoverImages").setListIndex(0);
    list("cboConversionMethod").setListIndex(1);
    list("cboConvertAllPages").setListIndex(1);
    records.settings.intPromptPageRange = 7;
    part<QLineEdit>("txtShow").setText("/typed");
    part<QLineEdit>("txtLogPath").setText("/typed.log");
    click("cmdOK");
    const AppSettings& stored = records.settings;
    EXPECT_EQ(stored.intLauchMs, 0);
    EXPECT_EQ(records.job.intOpenDocEditing, 0);
    EXPECT_EQ(stored.intOutputFormat, 1);
    EXPECT_EQ(stored.intUseWiz, 0);
    EXPECT_EQ(stored.intReconstMode, 0);
    EXPECT_EQ(stored.intCharSpac, 0);
    EXPECT_EQ(records.job.strCharSpacing, "yes");
    EXPECT_EQ(stored.intRecoverImg, 0);
    EXPECT_EQ(stored.strConversionMethod, "1");
    EXPECT_EQ(stored.intConvertFrom, 1);
    EXPECT_EQ(stored.intPromptPageRange, 7) << "left alone";
    EXPECT_EQ(stored.strRecentFolder, "/typed") << "the destination goes into the source folder's field";
    EXPECT_EQ(stored.strLogPath, "/logs/old.log") << "typing there does nothing";
    EXPECT_TRUE(QFile::exists(path("docval.temp")));
    EXPECT_EQ(mainWindow.showings, 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(window->isLoaded());
}

TEST_F(OptionLeaving, OkWithAllPagesClearsBothFields) {
    open();
    records.settings.intPromptPageRange = 1;
    records.settings.intConvertFrom = 1;
    click("cmdOK");
    EXPECT_EQ(records.settings.intPromptPageRange, 0);
    EXPECT_EQ(records.settings.intConvertFrom, 0);
    EXPECT_EQ(records.job.intOpenDocEditing, 1);
    EXPECT_EQ(records.job.strCharSpacing, "no");
}

TEST_F(OptionLeaving, OkBringsTheExtensionIntoLineAndShowsItInTheMainWindow) {
    open();
    folderDialog.folder = "/new";
    records.job.strOutputFile = "/out/report.doc"; // as after a browse, which puts the name back
    click("cmdBrwDestiFolder");
    EXPECT_EQ(records.job.strOutputFile, "/new/report.doc");
    list("cboOutputFileformat").setListIndex(2);
    click("cmdOK");
    EXPECT_EQ(records.job.strOutputFile, "/new/report.docx");
    EXPECT_EQ(mainWindow.outputBox, "/new/report.docx");
}

TEST_F(OptionLeaving, CancelRestoresTheLogPath) {
    open();
    folderDialog.folder = "/new";
    click("cmdBrwLogFile");
    EXPECT_EQ(folderDialog.titles, QStringList{"Browse for folder"});
    EXPECT_EQ(box("txtLogPath"), "/new/tavrelion.log");
    click("cmdCancel");
    EXPECT_EQ(records.settings.strLogPath, "/logs/old.log");
    EXPECT_EQ(mainWindow.showings, 1);
    EXPECT_FALSE(window->isVisible());

    window->showForm();
    folderDialog.folder = "/new/";
    click("cmdBrwLogFile");
    EXPECT_EQ(records.settings.strLogPath, "/new/tavrelion.log") << "no second separator";
    click("cmdOK");
    window->showForm();
    click("cmdCancel");
    EXPECT_EQ(records.settings.strLogPath, "/new/tavrelion.log") << "after OK Cancel goes back no further";
}

TEST_F(OptionLeaving, CancelStoresNoList) {
    open();
    list("cboReconstructionMode").setListIndex(0);
    list("cboUserInterfaceLang").setListIndex(3);
    click("cmdCancel");
    EXPECT_EQ(records.settings.intReconstMode, 3);
    EXPECT_EQ(records.settings.intLanguageID, 0);
    EXPECT_FALSE(QFile::exists(path("docval.temp")));
}

TEST_F(OptionLeaving, SwitchesTheLanguage) {
    open();
    list("cboUserInterfaceLang").setListIndex(3);
    click("cmdOK");
    EXPECT_EQ(records.settings.intLanguageID, 3);
    window->showForm();
    EXPECT_EQ(withoutMnemonic(part<QPushButton>("cmdCancel").text()), "Abbrechen");
}

TEST_F(OptionLeaving, ALanguageWithAMissingFileKeepsTheOldOneAndTheWindowOpen) {
    useOwnLanguageFiles({"germanoptions.xml"});
    open();
    list("cboUserInterfaceLang").setListIndex(3);
    list("cboUseWizard").setListIndex(0);
    click("cmdOK");
    EXPECT_EQ(records.settings.intLanguageID, 0);
    EXPECT_EQ(records.settings.intUseWiz, 1) << "no other field has changed";
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains("germanoptions.xml"));
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(QFile::exists(path("docval.temp")));
}

TEST_F(OptionLeaving, RestoreDefaultSavesTheFactoryValuesAndCloses) {
    open();
    records.settings.intReconstMode = 0;
    click("btnRestoreDefault");
    EXPECT_EQ(records.settings.intReconstMode, 3);
    EXPECT_TRUE(QFile::exists(path("docval.temp")));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(mainWindow.showings, 1);
    EXPECT_EQ(mainWindow.outputBox, "/out/report.doc") << "the main window's box is not refreshed";
}

TEST_F(OptionLeaving, RestoreDefaultWithoutAWordProcessorMeansRtf) {
    wordInstalled = 0;
    open();
    records.job.strOutputFile = "/out/report.docx";
    click("btnRestoreDefault");
    EXPECT_EQ(records.settings.intOutputFormat, 1);
    EXPECT_EQ(records.job.strOutputFile, "/out/report.rtf");
}

TEST_F(OptionLeaving, ARestoreWithoutItsFileTellsAndClosesEvenSo) {
    useOwnLanguageFiles({"DefaultSettings.xml"});
    open();
    records.settings.intReconstMode = 0;
    click("btnRestoreDefault");
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains("DefaultSettings.xml"));
    EXPECT_EQ(records.settings.intReconstMode, 0);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(OptionLeaving, AFailureOfAButtonIsLoggedUnderItsName) {
    mainWindow.whenShown = [] { throw std::runtime_error("the main window is gone"); };
    for (const QString handler : {"cmdOK", "cmdCancel", "btnRestoreDefault"}) {
        open();
        click(handler);
        EXPECT_TRUE(
            errorLog().contains("Form Name: frmOption, Module Name: " + handler + "_Click\r\nthe main window is gone"))
            << handler.toStdString();
        EXPECT_TRUE(window->isVisible());
    }
}

} // namespace
} // namespace tavrelion::tests
