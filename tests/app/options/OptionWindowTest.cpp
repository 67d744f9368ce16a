#include "OptionFixture.h"

#include <gmock/gmock.h>

namespace tavrelion::tests {
namespace {

class OptionWindow : public OptionFixture {};

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

TEST_F(OptionWindow, ItsLinksFollowTheMouse) {
    open();
    const auto moveOver = [this](const char* name) {
        auto& widget = part<QWidget>(name);
        QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), widget.mapToGlobal(QPointF(3, 3)), Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(&widget, &move);
    };
    const LinkBar& bar = *window->findChild<LinkBar*>();
    moveOver("imgWebsite");
    EXPECT_EQ(bar.intHoverLink(), 5);
    moveOver("Picture1");
    EXPECT_EQ(bar.intHoverLink(), 0);
}

} // namespace
} // namespace tavrelion::tests
