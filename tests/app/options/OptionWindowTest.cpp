#include "OptionFixture.h"

#include "ui/options/OutputPath.h"

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class OptionWindow : public OptionFixture {};

TEST_F(OptionWindow, ShowsTheSettings) {
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

TEST_F(OptionWindow, TheLoadRefreshesTheLogPathFlag) {
    records.settings.strLogPathFlag = "3";
    open();
    EXPECT_EQ(records.settings.intLogPath, 3);
}

TEST_F(OptionWindow, AnEmptyLogPathBecomesTheHomeFolders) {
    records.settings.strLogPath = "  ";
    open();
    EXPECT_EQ(records.settings.strLogPath, path("tavrelion.log"));
    EXPECT_EQ(box("txtLogPath"), path("tavrelion.log"));
}

TEST_F(OptionWindow, TakesThePageChoiceFromTheMainWindow) {
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

TEST_F(OptionWindow, HoldsAFolderInTheOutputPathWhileItIsOpen) {
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

TEST_F(OptionWindow, ShowsTheRecentFolderWithoutAnOutput) {
    mainWindow.outputBox = " ";
    open();
    EXPECT_EQ(box("txtShow"), "/recent");
    EXPECT_EQ(records.job.strOutputFile, "/out/report.doc");
}

TEST_F(OptionWindow, WithoutAWordProcessorTheFirstFormatIsGoneAndOkStoresRtf) {
    wordInstalled = 0;
    records.settings.intOutputFormat = 2;
    open();
    EXPECT_EQ(items("cboOutputFileformat").size(), 2);
    EXPECT_EQ(list("cboOutputFileformat").listIndex(), 1);
    click("cmdOK");
    EXPECT_EQ(records.settings.intOutputFormat, 1) << "whatever the list shows";
}

TEST_F(OptionWindow, AnOldWordProcessorHasNoDocx) {
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

TEST_F(OptionWindow, TextOnlyModesGreyTheListsThatOkReadsEvenSo) {
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

TEST_F(OptionWindow, OkStoresTheListsAndSaves) {
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

TEST_F(OptionWindow, OkWithAllPagesClearsBothFields) {
    open();
    records.settings.intPromptPageRange = 1;
    records.settings.intConvertFrom = 1;
    click("cmdOK");
    EXPECT_EQ(records.settings.intPromptPageRange, 0);
    EXPECT_EQ(records.settings.intConvertFrom, 0);
    EXPECT_EQ(records.job.intOpenDocEditing, 1);
    EXPECT_EQ(records.job.strCharSpacing, "no");
}

TEST(OutputPath, GetsTheExtensionOfTheFormatWhereverItsTextStands) {
    struct Row {
        const char* path;
        std::int16_t format;
        const char* result;
        const char* why;
    };
    for (const Row& row : {Row{"/out/a.doc", 2, "/out/a.docx", "DOCX"}, Row{"/out/a.DOC", 2, "/out/a.docx", "capitals"},
                           Row{"/out/a.rtf", 2, "/out/a.docx", "from RTF"}, Row{"/out/a.docx", 1, "/out/a.rtf", "RTF"},
                           Row{"/out/a.doc", 1, "/out/a.rtf", "RTF"}, Row{"/out/a.docx", 0, "/out/a.doc", "DOC"},
                           Row{"/out/a.rtf", 0, "/out/a.doc", "DOC"}, Row{"/out/a.doc", 0, "/out/a.doc", "is one"},
                           Row{"/my.doc/a.doc", 1, "/my.rtf/a.rtf", "throughout the path"},
                           Row{"/my.doc/a.DOC", 1, "/my.doc/a.rtf", "in its own letter case"},
                           Row{"/out/a.txt", 2, "/out/a.txt", "another extension"}, Row{"/out/", 1, "/out/", "none"}})
        EXPECT_EQ(withFormat(row.path, row.format), row.result) << row.path << ": " << row.why;
}

TEST_F(OptionWindow, OkBringsTheExtensionIntoLineAndShowsItInTheMainWindow) {
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

TEST_F(OptionWindow, ABrowseForTheDestinationTakesEffectAtOnceAndStays) {
    open();
    folderDialog.folder = "/new/";
    click("cmdBrwDestiFolder");
    EXPECT_EQ(folderDialog.titles, QStringList{"Browse Folder"});
    EXPECT_EQ(records.settings.strRecentOutputFolder, "/new/");
    EXPECT_EQ(records.job.strOutputFile, "/new/") << "no second separator";
    EXPECT_EQ(box("txtShow"), "/new/");
    click("cmdCancel");
    EXPECT_EQ(records.settings.strRecentOutputFolder, "/new/");
    EXPECT_EQ(records.job.strOutputFile, "/out/report.doc") << "back from the main window";
}

TEST_F(OptionWindow, ACancelledBrowseChangesNothing) {
    open();
    part<QLineEdit>("txtShow").setText("/typed");
    click("cmdBrwDestiFolder");
    click("cmdBrwLogFile");
    EXPECT_EQ(box("txtShow"), "/typed");
    EXPECT_EQ(records.settings.strRecentOutputFolder, "/recent");
    EXPECT_EQ(records.settings.strLogPath, "/logs/old.log");
}

TEST_F(OptionWindow, CancelRestoresTheLogPath) {
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

TEST_F(OptionWindow, CancelStoresNoList) {
    open();
    list("cboReconstructionMode").setListIndex(0);
    list("cboUserInterfaceLang").setListIndex(3);
    click("cmdCancel");
    EXPECT_EQ(records.settings.intReconstMode, 3);
    EXPECT_EQ(records.settings.intLanguageID, 0);
    EXPECT_FALSE(QFile::exists(path("docval.temp")));
}

TEST_F(OptionWindow, SwitchesTheLanguage) {
    open();
    list("cboUserInterfaceLang").setListIndex(3);
    click("cmdOK");
    EXPECT_EQ(records.settings.intLanguageID, 3);
    window->showForm();
    EXPECT_EQ(withoutMnemonic(part<QPushButton>("cmdCancel").text()), "Abbrechen");
}

TEST_F(OptionWindow, ALanguageWithAMissingFileKeepsTheOldOneAndTheWindowOpen) {
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

TEST_F(OptionWindow, RestoreDefaultSavesTheFactoryValuesAndCloses) {
    open();
    records.settings.intReconstMode = 0;
    click("btnRestoreDefault");
    EXPECT_EQ(records.settings.intReconstMode, 3);
    EXPECT_TRUE(QFile::exists(path("docval.temp")));
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(mainWindow.showings, 1);
    EXPECT_EQ(mainWindow.outputBox, "/out/report.doc") << "the main window's box is not refreshed";
}

TEST_F(OptionWindow, RestoreDefaultWithoutAWordProcessorMeansRtf) {
    wordInstalled = 0;
    open();
    records.job.strOutputFile = "/out/report.docx";
    click("btnRestoreDefault");
    EXPECT_EQ(records.settings.intOutputFormat, 1);
    EXPECT_EQ(records.job.strOutputFile, "/out/report.rtf");
}

TEST_F(OptionWindow, ARestoreWithoutItsFileTellsAndClosesEvenSo) {
    useOwnLanguageFiles({"DefaultSettings.xml"});
    open();
    records.settings.intReconstMode = 0;
    click("btnRestoreDefault");
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains("DefaultSettings.xml"));
    EXPECT_EQ(records.settings.intReconstMode, 0);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(OptionWindow, ShowsTheHelpLineOfTheFieldWithTheFocus) {
    open();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    part<QPushButton>("cmdOK").setFocus();
    auto& help = part<QLabel>("lblToolTip");
    auto& marker = part<Picture>("imgCircleArrow3");
    EXPECT_FALSE(help.isVisible());
    for (const char* field : {"cboUserInterfaceLang", "cboLaunchMSWord", "cboOutputFileformat", "cboUseWizard",
                              "cboReconstructionMode", "cboCharSpacingType", "cboRecoverImages", "cboConversionMethod",
                              "cboConvertAllPages", "txtShow", "txtLogPath"}) {
        part<QWidget>(field).setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(help.isVisible()) << field;
        EXPECT_TRUE(marker.isVisible()) << field;
        EXPECT_FALSE(help.text().isEmpty()) << field;
    }
    EXPECT_EQ(help.text(), "The folder in which the log of each conversion is kept.");
    part<QPushButton>("cmdOK").setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(help.isVisible());
    EXPECT_FALSE(marker.isVisible());
}

TEST_F(OptionWindow, AFieldWithoutAnEntryKeepsTheHelpLineOfTheOneBefore) {
    open();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    part<QWidget>("txtLogPath").setFocus(Qt::TabFocusReason);
    const QString before = part<QLabel>("lblToolTip").text();
    part<QWidget>("cboUseWizard").setObjectName("cboNobodyKnows");
    part<QWidget>("cboNobodyKnows").setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(part<Picture>("imgCircleArrow3").isVisible());
    EXPECT_EQ(part<QLabel>("lblToolTip").text(), before);
}

TEST_F(OptionWindow, ToldOnceWhenTheFileOfTheHelpLinesIsGone) {
    useOwnLanguageFiles({});
    open();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    part<QPushButton>("cmdOK").setFocus();
    QFile::remove(path("XML/englishoptions.xml"));
    part<QWidget>("txtLogPath").setFocus(Qt::TabFocusReason);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains("englishoptions.xml"));
}

TEST_F(OptionWindow, ClosingAsksAndNoKeepsIt) {
    open();
    window->close();
    EXPECT_EQ(messageBox.questions, QStringList{"Do you want to close Tavrelion-PDF to Word Converter?"});
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(records.flags.blnCloseRequested);
}

TEST_F(OptionWindow, ClosingWithYesUnloadsAllWindowsAndShowsTheMainWindow) {
    messageBox.answer = UserMessages::Answer::Yes;
    open();
    window->close();
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_EQ(eventLoop.yields, 1);
    EXPECT_TRUE(registry.loadedWindows().empty());
    EXPECT_EQ(mainWindow.showings, 1) << "where it is still there to be shown";
}

TEST_F(OptionWindow, OtherReasonsToCloseAskNothing) {
    open();
    window->unload(UnloadMode::SystemShutdown);
    EXPECT_TRUE(messageBox.questions.isEmpty());
}

TEST_F(OptionWindow, AFailureOfTheClosingIsLogged) {
    messageBox.answer = UserMessages::Answer::Yes;
    eventLoop.atYield[1] = [] { throw std::runtime_error("out of order"); };
    open();
    window->close();
    EXPECT_TRUE(errorLog().startsWith("Form Name: frmOption, Module Name: Form_QueryUnload\r\nout of order"));
}

TEST_F(OptionWindow, AFailureOfAButtonIsLoggedUnderItsName) {
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
