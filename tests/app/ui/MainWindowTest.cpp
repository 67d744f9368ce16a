#include "app/support/MainFixture.h"
#include "ui/application/MainWindowView.h"
#include "ui/form/LinkLabel.h"
#include "ui/form/OptionButton.h"

#include <QCheckBox>
#include <QPushButton>

namespace tavrelion::tests {
namespace {

TEST_F(MainWindow, SaysWhereTheDocumentLies) {
    show();
    EXPECT_FALSE(child("lblFinishedDocument").isVisible());
    window().showFinishedDocument("/out/report.docx");
    EXPECT_EQ(caption("lblFinishedDocument"), "The document lies in /out/report.docx");
    EXPECT_TRUE(child("lblFinishedDocument").isVisible());
}

TEST_F(MainWindow, HasTheControlsThatARunWritesTo) {
    using Text = MainView::Text;
    records.queue.lngSelectedBound = 2;
    records.job.strSourcePDF = "/in/report.pdf";
    show();
    MainWindowView seenByRun(registry, [this] { return registry.find<frmMain>(); });
    const std::map<Text, const char*> controls{{Text::txtfilepath, "txtfilepath"},
                                               {Text::txtFileBrowsePath, "txtFileBrowsePath"},
                                               {Text::txtFileSize, "txtFileSize"},
                                               {Text::txtfilepathOutput, "txtfilepathOutput"}};
    for (const auto& [control, name] : controls) {
        seenByRun.setText(control, name);
        EXPECT_EQ(text(name), name);
        EXPECT_EQ(seenByRun.text(control), name);
    }
    seenByRun.setText(Text::lblOutputFormatDoc, "docx");
    EXPECT_EQ(caption("lblOutputFormatDoc"), "docx");
    seenByRun.setSourceToolTip("tip");
    EXPECT_EQ(child("txtFileBrowsePath").toolTip(), "tip");
    seenByRun.disableButton(MainView::Button::cmdBrowse);
    EXPECT_FALSE(child("cmdBrowse").isEnabled());
    seenByRun.enableButton(MainView::Button::cmdBrowse);
    EXPECT_TRUE(child("cmdBrowse").isEnabled());
    seenByRun.showBanner(MainView::Banner::lblPlzBrowse);
    EXPECT_TRUE(child("lblPlzBrowse").isVisible());
    EXPECT_FALSE(child("lblBatchInProcess").isVisible());
    seenByRun.showBanner(MainView::Banner::lblBatchInProcess);
    EXPECT_FALSE(child("lblPlzBrowse").isVisible());
    EXPECT_TRUE(child("lblBatchInProcess").isVisible());
}

TEST_F(MainWindow, ClosingAsksAndNoKeepsIt) {
    show();
    records.flags.blnCloseRequested = true;
    window().close();
    EXPECT_EQ(messageBox.questions, QStringList{"Do you want to close Tavrelion-PDF to Word Converter?"});
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(records.flags.blnCloseRequested);
    EXPECT_FALSE(registry.hasProgramEnded());
}

TEST_F(MainWindow, ClosingAnsweredYesEndsTheProgram) {
    show();
    messageBox.answer = UserMessages::Answer::Yes;
    window().close();
    EXPECT_TRUE(records.flags.blnCloseRequested);
    EXPECT_TRUE(registry.hasProgramEnded());
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(eventLoop.yields, 1);
}

TEST_F(MainWindow, ASystemShutdownClosesItWithoutAQuestion) {
    show();
    registry.noteSystemShutdown();
    window().close();
    EXPECT_TRUE(messageBox.questions.isEmpty());
    EXPECT_TRUE(registry.hasProgramEnded());
}

TEST_F(MainWindow, ExitAsksItsOwnQuestion) {
    show();
    records.flags.intDialogAnswer = 1;
    click("imgExit");
    EXPECT_EQ(yesNoDialog.asked, QStringList{"msgWishToExit"});
    EXPECT_EQ(yesNoDialog.places.front(), YesNoDialog::Place::CentreOfMain);
    EXPECT_EQ(records.flags.intDialogAnswer, 0);
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(registry.hasProgramEnded());
    yesNoDialog.answer = 1;
    QTest::keyClick(&child("lblExit"), Qt::Key_Space);
    EXPECT_TRUE(registry.hasProgramEnded());
    EXPECT_EQ(eventLoop.yields, 1);
    EXPECT_TRUE(messageBox.questions.isEmpty());
}

TEST_F(MainWindow, AClickLetGoOutsideALabelIsTakenBack) {
    show();
    QTest::mousePress(&child("lblExit"), Qt::LeftButton);
    QTest::mouseRelease(&child("lblExit"), Qt::LeftButton, {}, QPoint(-50, -50));
    EXPECT_TRUE(yesNoDialog.asked.isEmpty());
}

TEST_F(MainWindow, TheSettingsLabelStoresThePageRangeAndTheImageDoesNot) {
    show();
    setText("txtFrom", "  4-6 ");
    click("imgSettings");
    EXPECT_EQ(records.job.strPageRange, "1");
    EXPECT_EQ(journalled(), QStringList{"frmOption"});
    EXPECT_FALSE(window().isVisible());
    show();
    setText("txtFrom", "  4-6 ");
    click("lblSettings");
    EXPECT_EQ(records.job.strPageRange, "4-6");
    EXPECT_EQ(journalled(), QStringList{"frmOption"});
    EXPECT_FALSE(window().isVisible());
}

TEST_F(MainWindow, TheTickOffersEachDocumentUnlessABatchIsOfferedAlready) {
    auto& tick = child<QCheckBox>("chkOpenDocEditing");
    show();
    EXPECT_FALSE(tick.isChecked());
    tick.click();
    EXPECT_EQ(records.settings.intLauchMs, 2);
    tick.click();
    EXPECT_EQ(records.settings.intLauchMs, 0);
    records.settings.intLauchMs = 1;
    showAgain();
    EXPECT_TRUE(tick.isChecked());
    EXPECT_EQ(records.settings.intLauchMs, 1) << "the tick that the window takes changes nothing";
}

TEST_F(MainWindow, OpensTheLinksByLabelAndImage) {
    show();
    const struct {
        const char* label;
        const char* image;
        const char* target;
    } rows[] = {{"lblHelp", "imgHelp", "/opt/tavrelion/Tavrelion.chm"},
                {"lblOnline", "imgOnline", "gotopg=support"},
                {"lblQuickTour", "imgQuickTour", "gotopg=quicktour2"},
                {"lblWebsite", "imgWebsite", "gotopg=homepage"},
                {"lblOtherProducts", "imgOtherProducts", "gotopg=homepage"}};
    for (const auto& row : rows) {
        opener.opened.clear();
        click(row.label);
        click(row.image);
        ASSERT_EQ(opener.opened.size(), 2) << row.label;
        EXPECT_TRUE(opener.opened[0].endsWith(row.target)) << opener.opened[0].toStdString();
        EXPECT_EQ(opener.opened[0], opener.opened[1]);
    }
}

TEST_F(MainWindow, IsReachedWholeByTheTabKey) {
    records.job.strSourcePDF = "/in/report.pdf";
    records.settings.intConvertFrom = 1;
    show();
    window().activateWindow();
    QStringList reached;
    QApplication::processEvents();
    for (int i = 0; i < 40 && QApplication::focusWidget(); ++i) {
        const QString name = QApplication::focusWidget()->objectName();
        if (reached.contains(name))
            break;
        reached << name;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached.join(' ').toStdString(),
              "cmdBrowse chkFromTo txtFrom txtfilepathOutput cmdBrowseOutput chkOpenDocEditing lblConvert imgDropDown "
              "lblExtimgWiz lblSettings lblExit lblHelp lblOnline lblOtherProducts lblQuickTour lblWebsite");
}

TEST_F(MainWindow, HasAnAccessKeyOfItsOwnForEveryControlInEveryLanguage) {
    for (std::int16_t language = 0; language < kLanguageCount; ++language) {
        records.settings.intLanguageID = language;
        if (language == 0)
            show();
        else
            showAgain();
        std::map<QString, QString> keys;
        for (const char* name : {"cmdBrowse", "cmdBrowseOutput", "chkOpenDocEditing", "lblConvert", "lblExtimgWiz",
                                 "lblSettings", "lblExit", "lblHelp", "lblOnline", "lblOtherProducts", "lblQuickTour",
                                 "lblWebsite", "lblAllPages", "lblFrom", "lblOutputfilepath"}) {
            const QString shown = captionOf(child(name));
            const QString key = shown.mid(shown.indexOf('&') + 1, 1).toUpper();
            EXPECT_TRUE(shown.contains('&')) << language << ' ' << shown.toStdString();
            EXPECT_EQ(keys.count(key), 0u)
                << language << ' ' << shown.toStdString() << " and " << keys[key].toStdString();
            keys[key] = shown;
        }
    }
}

TEST_F(MainWindow, AnAccessKeyPressesALabel) {
    show();
    window().activateWindow();
    QApplication::processEvents();
    const QString shown = caption("lblExit");
    const QChar key = shown[shown.indexOf('&') + 1];
    QTest::keyClick(&window(), key.toLatin1(), Qt::AltModifier);
    EXPECT_EQ(yesNoDialog.asked, QStringList{"msgWishToExit"});
}

} // namespace
} // namespace tavrelion::tests
