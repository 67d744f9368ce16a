#include "PageFixture.h"

#include "ui/wizard/ShownPath.h"

#include <QFile>
#include <QTest>

namespace tavrelion::tests {
namespace {

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
