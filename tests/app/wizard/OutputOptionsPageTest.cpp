#include "PageFixture.h"

#include <QCheckBox>
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

} // namespace
} // namespace tavrelion::tests
