#include "PageFixture.h"

#include "ui/wizard/ShownPath.h"

#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QTest>

namespace tavrelion::tests {
namespace {

class OutputOptionsPage : public PageFixture {
protected:
    static constexpr char kPage[] = "frmOutputOptions";

    void chooseNumbers(const QString& from, const QString& to) {
        option(kPage, "chkFromTo").setValue(true);
        setText(kPage, "txtFrom", from);
        setText(kPage, "txtTo", to);
    }
    bool areBoxesEnabled() {
        for (const char* part : {"lblFrom", "txtFrom", "lblTo", "txtTo"})
            if (!control(kPage, part).isEnabled())
                return false;
        return true;
    }
};

TEST_F(OutputOptionsPage, BrowsesForTheOutputFile) {
    show(kPage);
    fileDialogs.saved = "/out/new.RTF";
    click(kPage, "cmdBrowse");
    ASSERT_EQ(fileDialogs.saveRequests.size(), 1u);
    EXPECT_EQ(fileDialogs.saveRequests[0].title, "Save As");
    EXPECT_EQ(fileDialogs.saveRequests[0].initialFolder, "/out");
    EXPECT_EQ(fileDialogs.saveRequests[0].filter, "DOC Files (*.doc)|*.doc|RTF Files (*.rtf)|*.rtf");
    EXPECT_EQ(fileDialogs.saveRequests[0].fileName, "");
    EXPECT_EQ(records.job.strOutputFile, "/out/new.RTF");
    EXPECT_EQ(text(kPage, "txtfilepath"), "/out/new.RTF");
    EXPECT_EQ(text(kPage, "lblOutputFormatDoc"), ".RTF");
}

TEST_F(OutputOptionsPage, ABrowseThatIsCancelledChangesNothing) {
    show(kPage);
    const auto before = fields();
    click(kPage, "cmdBrowse");
    EXPECT_EQ(fields(), before);
    EXPECT_TRUE(refusals.refused.isEmpty());
}

TEST_F(OutputOptionsPage, RefusesOtherExtensionsAndMixedCase) {
    show(kPage);
    for (const char* file : {"/out/new.Doc", "/out/new.docx", "/out/new", "/out/new.rtF", "/out/new.pdf"}) {
        refusals.refused.clear();
        fileDialogs.saved = file;
        click(kPage, "cmdBrowse");
        EXPECT_EQ(refusals.refused, QStringList{"txtInvalidFileFormatOutput"}) << file;
        EXPECT_EQ(records.job.strOutputFile, "/out/report.doc");
    }
}

TEST_F(OutputOptionsPage, NextTakesTheFormatFromTheExactExtension) {
    struct Row {
        const char* file;
        int format;
        const char* shown;
    };
    for (const Row& row : {Row{"/out/a.doc", 0, ".doc"}, Row{"/out/a.DOC", 1, ".DOC"}, Row{"/out/a.rtf", 1, ".rtf"}}) {
        show(kPage);
        fileDialogs.saved = row.file;
        click(kPage, "cmdBrowse");
        click(kPage, "cmdNext");
        EXPECT_EQ(records.settings.intOutputFormat, row.format) << row.file;
        EXPECT_EQ(records.job.strOutputShown, row.shown);
        EXPECT_EQ(records.settings.strRecentFolder, row.file) << "in full, file name and all";
        hide("frmLayout");
    }
}

TEST_F(OutputOptionsPage, WithoutAShownFormatNextSetsRtf) {
    records.job.strOutputShown.clear();
    show(kPage);
    click(kPage, "cmdNext");
    EXPECT_EQ(records.settings.intOutputFormat, 1);
}

TEST_F(OutputOptionsPage, LastKeepsTheStoredFormat) {
    records.settings.intOutputFormat = 0;
    show(kPage);
    fileDialogs.saved = "/out/a.rtf";
    click(kPage, "cmdBrowse");
    click(kPage, "cmdLast");
    EXPECT_EQ(records.settings.intOutputFormat, 0);
    EXPECT_EQ(records.job.strOutputShown, ".rtf");
}

TEST_F(OutputOptionsPage, RefusesNumbersThatAreNoRange) {
    struct Row {
        const char* from;
        const char* to;
        const char* message;
    };
    for (const Row& row :
         {Row{"3", "2", "txtIncorrectRange"}, Row{"0", "2", "txtPageRangeZero"}, Row{"0", "0", "txtPageRangeZero"},
          Row{"3", "", "txtIncompleteRange"}, Row{"", "3", "txtIncompleteRange"}, Row{"", "", "txtIncompleteRange"},
          Row{"3", "0", "txtIncorrectRange"}})
        for (const char* button : {"cmdNext", "cmdLast"}) {
            refusals.refused.clear();
            show(kPage);
            chooseNumbers(row.from, row.to);
            const auto before = fields();
            click(kPage, button);
            EXPECT_EQ(refusals.refused, QStringList{row.message}) << row.from << " to " << row.to;
            EXPECT_EQ(fields(), before) << "nothing is stored";
            EXPECT_TRUE(form(kPage)->isVisible());
        }
}

TEST_F(OutputOptionsPage, StoresTheNumbersAndShowsThemOnReturn) {
    show(kPage);
    chooseNumbers("2", "9");
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.intUseFromTo, 0);
    EXPECT_EQ(records.job.intPageFrom, 2);
    EXPECT_EQ(records.job.intPageTo, 9);
    EXPECT_EQ(records.settings.intPromptPageRange, 1);
    show(kPage);
    EXPECT_TRUE(option(kPage, "chkFromTo").value());
    EXPECT_EQ(text(kPage, "txtFrom"), "2");
    EXPECT_EQ(text(kPage, "txtTo"), "9");
    click(kPage, "chkAllPages");
    EXPECT_EQ(records.job.intPageFrom, 0) << "a click forgets them";
    EXPECT_EQ(text(kPage, "txtFrom"), "");
    click(kPage, "cmdNext");
    EXPECT_EQ(records.job.intUseFromTo, -1);
    EXPECT_EQ(records.settings.intPromptPageRange, 0);
}

TEST_F(OutputOptionsPage, AStoredChoiceOfPagesWithoutNumbersFallsBackToAllPages) {
    records.settings.intPromptPageRange = 1;
    show(kPage);
    EXPECT_TRUE(option(kPage, "chkAllPages").value()) << "the load's click logic";
    EXPECT_EQ(records.settings.intPromptPageRange, 0);
    hide(kPage);
    records.settings.intPromptPageRange = 1;
    show(kPage);
    EXPECT_TRUE(option(kPage, "chkAllPages").value()) << "no stored numbers";
    EXPECT_EQ(records.settings.intPromptPageRange, 0);
    EXPECT_FALSE(areBoxesEnabled());
}

TEST_F(OutputOptionsPage, ItsOptionsShowTheirPicturesAndEnableTheBoxes) {
    show(kPage);
    EXPECT_EQ(picture(kPage, "imgPages"), "all_pages.jpg");
    EXPECT_FALSE(areBoxesEnabled());
    click(kPage, "chkFromTo");
    EXPECT_EQ(picture(kPage, "imgPages"), "selected_pages.jpg");
    EXPECT_TRUE(areBoxesEnabled());
    click(kPage, "chkAllPages");
    EXPECT_FALSE(areBoxesEnabled());
}

TEST_F(OutputOptionsPage, TheBoxesTakeFourDigits) {
    show(kPage);
    click(kPage, "chkFromTo");
    type(kPage, "txtFrom", "1,2-a34567");
    EXPECT_EQ(text(kPage, "txtFrom"), "1234");
    QTest::keyClick(&control(kPage, "txtFrom"), Qt::Key_Backspace);
    EXPECT_EQ(text(kPage, "txtFrom"), "123");
}

TEST_F(OutputOptionsPage, NextAndLastWaitForAPathAndStayEnabledThen) {
    records.job.strOutputFile.clear();
    show(kPage);
    EXPECT_FALSE(control(kPage, "cmdNext").isEnabled());
    EXPECT_FALSE(control(kPage, "cmdLast").isEnabled());
    setText(kPage, "txtfilepath", "/out/a.doc");
    EXPECT_TRUE(control(kPage, "cmdNext").isEnabled());
    setText(kPage, "txtfilepath", "");
    EXPECT_TRUE(control(kPage, "cmdNext").isEnabled());
    EXPECT_TRUE(control(kPage, "cmdLast").isEnabled());
}

TEST_F(OutputOptionsPage, UntickingTheOpeningClearsTheSettingToo) {
    for (const char* button : {"cmdNext", "cmdLast"}) {
        records.settings.intLauchMs = 2;
        records.job.intOpenDocEditing = 0;
        show(kPage);
        auto& tick = control<QCheckBox>(kPage, "chkOpenDocEditing");
        EXPECT_TRUE(tick.isChecked()) << "from the setting";
        click(kPage, button);
        EXPECT_EQ(records.settings.intLauchMs, 2);
        EXPECT_EQ(records.job.intOpenDocEditing, 1);
        records.settings.intLauchMs = 0;
        show(kPage);
        EXPECT_TRUE(tick.isChecked()) << "from the job";
        records.settings.intLauchMs = 2;
        tick.setChecked(false);
        click(kPage, button);
        EXPECT_EQ(records.settings.intLauchMs, 0);
        EXPECT_EQ(records.job.intOpenDocEditing, 0);
    }
}

class SummaryPage : public PageFixture {
protected:
    static constexpr char kPage[] = "frmOutputSummary";
    bool isShown(const QString& name) { return control(kPage, name).isVisible(); }
};

TEST(ShownPath, OfFiftySixCharactersIsWholeAndALongerOneIsShortened) {
    const QString whole = QString(28, 'a') + "123" + QString(25, 'z');
    EXPECT_EQ(shortenedPath(whole), whole);
    const QString longer = QString(28, 'a') + "1234" + QString(25, 'z');
    EXPECT_EQ(shortenedPath(longer), QString(28, 'a') + "..." + QString(25, 'z'));
    EXPECT_EQ(shortenedPath(longer).size(), 56);
}

TEST_F(SummaryPage, ShowsThePathsShortenedAndWholeInTheToolTip) {
    records.job.strSourcePDF = "/home/" + QString(80, 'x') + "/report.pdf";
    show(kPage);
    EXPECT_EQ(text(kPage, "txtSourcePath"), shortenedPath(records.job.strSourcePDF));
    EXPECT_EQ(control(kPage, "txtSourcePath").toolTip(), records.job.strSourcePDF);
    EXPECT_EQ(text(kPage, "txtOutputPath"), "/out/report.doc");
    EXPECT_EQ(control(kPage, "txtOutputPath").toolTip(), "/out/report.doc");
    EXPECT_EQ(text(kPage, "lblOutFormat"), ".doc");
}

TEST_F(SummaryPage, ShowsTheListOfPagesOrAllPages) {
    records.settings.intConvertFrom = 1;
    records.job.strPageRange = "2-3";
    show(kPage);
    EXPECT_EQ(text(kPage, "lblFromVal"), "2-3");
    EXPECT_TRUE(isShown("lblFromVal"));
    EXPECT_FALSE(isShown("lblTo"));
    EXPECT_FALSE(isShown("lblAllPages"));
    EXPECT_TRUE(isShown("lblToVal")) << "the load showed it, and only a walk with all pages hides it";
    hide(kPage);
    records.settings.intConvertFrom = 0;
    show(kPage);
    EXPECT_TRUE(isShown("lblAllPages"));
    for (const char* hidden : {"lblFrom", "lblFromVal", "lblTo", "lblToVal"})
        EXPECT_FALSE(isShown(hidden)) << hidden;
}

TEST_F(SummaryPage, ShowsTheImageTreatmentAsTheAnswerToRemoval) {
    struct Row {
        std::int16_t mode;
        std::int16_t treatment;
        bool removes;
    };
    for (const Row& row : {Row{0, 1, false}, Row{0, 0, true}, Row{1, 1, true}, Row{2, 1, true}, Row{2, 0, true},
                           Row{3, 1, false}, Row{4, 1, false}, Row{3, 7, true}}) {
        records.settings.intReconstMode = row.mode;
        records.settings.intRecoverImg = row.treatment;
        show(kPage);
        EXPECT_EQ(isShown("cmdYes"), row.removes) << row.mode << ' ' << row.treatment;
        EXPECT_EQ(isShown("cmdNo"), !row.removes) << row.mode << ' ' << row.treatment;
        hide(kPage);
    }
}

TEST_F(SummaryPage, HasNoSpacingLineForTextOnlyModes) {
    records.settings.intReconstMode = 2;
    show(kPage);
    for (const char* part : {"lblCharacterSpacing", "lblCharSpacing", "Image9"})
        EXPECT_FALSE(isShown(part)) << part;
    hide(kPage);
    records.settings.intReconstMode = 3;
    show(kPage);
    for (const char* part : {"lblCharacterSpacing", "lblCharSpacing", "Image9"})
        EXPECT_TRUE(isShown(part)) << part;
    EXPECT_EQ(text(kPage, "lblCharSpacing"), "no");
}

TEST_F(SummaryPage, AfterLastOnTheLayoutHoldsTheWordOfTheSettingsAndTheNewLayout) {
    show("frmLayout");
    click("frmLayout", "cmdLast");
    EXPECT_EQ(text(kPage, "lblCharSpacing"), "no");
    EXPECT_EQ(text(kPage, "lblLayoutSel"), text("frmLayout", "lblFlowingText1"));
    EXPECT_FALSE(text(kPage, "lblLayoutSel").isEmpty());
}

TEST_F(SummaryPage, ReachedWithoutTheLayoutPageShowsNoLayout) {
    show(kPage);
    EXPECT_EQ(text(kPage, "lblLayoutSel"), "");
}

TEST_F(SummaryPage, ThePathBoxesPassTheFocusOnToFinish) {
    show(kPage).activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form(kPage).get()));
    for (const char* box : {"txtSourcePath", "txtOutputPath"}) {
        control(kPage, "cmdBack").setFocus();
        control(kPage, box).setFocus();
        EXPECT_EQ(form(kPage)->focusWidget(), &control(kPage, "cmdFinish")) << box;
    }
}

TEST_F(SummaryPage, FinishSavesTheSettingsAndStartsTheRun) {
    show(kPage);
    click(kPage, "cmdFinish");
    EXPECT_TRUE(QFile::exists(path("docval.temp")));
    EXPECT_EQ(shownWindows(), QStringList{"frmProgress"});
}

TEST_F(SummaryPage, FinishStaysWhenAStopIsRequestedButHasSavedThen) {
    records.flags.blnCloseRequested = true;
    show(kPage);
    click(kPage, "cmdFinish");
    EXPECT_TRUE(QFile::exists(path("docval.temp")));
    EXPECT_EQ(shownWindows(), QStringList{kPage});
    EXPECT_EQ(records.flags.intRunKind, 1);
}

TEST_F(SummaryPage, AFailureOfFinishIsLoggedWithASmallS) {
    whenRunStarts = [] { throw std::runtime_error("no progress window"); };
    show(kPage);
    click(kPage, "cmdFinish");
    QFile log(path("GUILog.tmp"));
    ASSERT_TRUE(log.open(QIODevice::ReadOnly));
    EXPECT_TRUE(log.readAll().startsWith("Form Name: frmOutputsummary, Module Name: cmdFinish_Click\r\n"));
}

} // namespace
} // namespace tavrelion::tests
