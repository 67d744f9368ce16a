#include "PageFixture.h"

#include <QLineEdit>
#include <QTest>

namespace tavrelion::tests {
namespace {

class PageRangePage : public PageFixture {
protected:
    static constexpr char kPage[] = "frmPageRange";

    void showList(const QString& range) {
        show(kPage);
        option(kPage, "chkFromTo").setValue(true);
        setText(kPage, "txtFrom", range);
    }
    QLineEdit& box() { return control<QLineEdit>(kPage, "txtFrom"); }
};

struct Refusal {
    const char* range;
    const char* message; ///< empty: the range passes
    const char* why;
};

void PrintTo(const Refusal& row, std::ostream* out) {
    *out << '"' << row.range << "\": " << row.why;
}

class RangesOfThePage : public PageRangePage, public testing::WithParamInterface<Refusal> {};

TEST_P(RangesOfThePage, PassOrAreRefused) {
    const Refusal& row = GetParam();
    for (const char* button : {"cmdNext", "cmdLast"}) {
        refusals.refused.clear();
        records.job.strPageRange = "old";
        records.settings.intConvertFrom = 0;
        showList(row.range);
        click(kPage, button);
        const bool passes = QString(row.message).isEmpty();
        EXPECT_EQ(refusals.refused, passes ? QStringList() : QStringList{row.message});
        EXPECT_EQ(records.job.strPageRange, passes ? row.range : "old") << "a refused range stores nothing";
        EXPECT_EQ(shownWindows(), QStringList{passes ? "frmOutputSummary" : kPage});
        EXPECT_EQ(box().text(), row.range) << "the text stays as typed";
        hide(passes ? "frmOutputSummary" : kPage);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RangesOfThePage,
    testing::Values(Refusal{"", "txtIncompleteRange", "an empty box with the list"},
                    Refusal{"  ", "txtPageRangeZero", "blanks have the leading number 0"},
                    Refusal{"0", "txtPageRangeZero", "zero"}, Refusal{"0-3", "txtPageRangeZero", "the first number"},
                    Refusal{",5", "txtPageRangeZero", "the leading number comes first"},
                    Refusal{"5,", "lblpgformat", "ends in a separator"},
                    Refusal{"1-2-3", "lblpgformat", "three pieces"}, Refusal{"1,,2", "lblpgformat", "two separators"},
                    Refusal{"1-,2", "lblpgformat", "two separators"}, Refusal{"9-3", "", "the order is free"},
                    Refusal{"3-0", "", "only the first number is tested here"},
                    Refusal{"5,0", "", "only the first number is tested here"},
                    Refusal{"123456,7", "", "only the last item is measured"},
                    Refusal{"7,123456", "lblpgnumber", "the last item is too long"}, Refusal{"1-3,7", "", "a list"}));

TEST_F(PageRangePage, AMessageEnablesTheBoxAndMovesTheFocusExceptForThreePieces) {
    showList("5,");
    box().setEnabled(false);
    click(kPage, "cmdNext");
    EXPECT_TRUE(box().isEnabled());
    EXPECT_EQ(form(kPage)->focusWidget(), &box());

    showList("1-2-3");
    box().setEnabled(false);
    control(kPage, "cmdNext").setFocus();
    click(kPage, "cmdNext");
    EXPECT_TRUE(box().isEnabled());
    EXPECT_NE(form(kPage)->focusWidget(), &box());

    showList("0");
    box().setEnabled(false);
    click(kPage, "cmdNext");
    EXPECT_FALSE(box().isEnabled()) << "the message about zero leaves the box";
}

TEST_F(PageRangePage, AllPagesPassWithAnyTextAndStoreIt) {
    show(kPage);
    setText(kPage, "txtFrom", "1-,");
    click(kPage, "cmdNext");
    EXPECT_TRUE(refusals.refused.isEmpty());
    EXPECT_EQ(records.job.strPageRange, "1-,");
    EXPECT_EQ(records.settings.intConvertFrom, 0);
}

TEST_F(PageRangePage, ItsOptionsWriteTheFieldAndShowTheirPictures) {
    show(kPage);
    EXPECT_EQ(picture(kPage, "imgPages"), "all_pages.gif");
    EXPECT_FALSE(box().isEnabled());
    click(kPage, "chkFromTo");
    EXPECT_EQ(records.settings.intConvertFrom, 1);
    EXPECT_TRUE(box().isEnabled());
    EXPECT_EQ(picture(kPage, "imgPages"), "pages_from_to.gif");
    setText(kPage, "txtFrom", "4");
    click(kPage, "chkAllPages");
    EXPECT_EQ(records.settings.intConvertFrom, 0);
    EXPECT_FALSE(box().isEnabled());
    EXPECT_TRUE(control(kPage, "lblFrom").isEnabled());
    EXPECT_EQ(box().text(), "4");
}

TEST_F(PageRangePage, AClickOnALabelSelectsItsOptionAndRunsTheLogicOnceMore) {
    show(kPage);
    click(kPage, "lblFrom");
    EXPECT_TRUE(option(kPage, "chkFromTo").value());
    records.settings.intConvertFrom = 9;
    click(kPage, "lblFrom");
    EXPECT_EQ(records.settings.intConvertFrom, 1);
    click(kPage, "lblAllPages");
    EXPECT_TRUE(option(kPage, "chkAllPages").value());
    records.settings.intConvertFrom = 9;
    click(kPage, "lblAllPages");
    EXPECT_EQ(records.settings.intConvertFrom, 0);
}

TEST_F(PageRangePage, BackKeepsAnUnfinishedTextForTheReturn) {
    showList("1-");
    click(kPage, "cmdBack");
    EXPECT_EQ(records.job.strPageRange, "1-");
    click("frmCharSpacing", "cmdNext");
    EXPECT_EQ(box().text(), "1-");
    EXPECT_TRUE(option(kPage, "chkFromTo").value());
    EXPECT_TRUE(box().isEnabled());
}

TEST_F(PageRangePage, TheBoxTakesDigitsAndSeparatorsBehindNumbers) {
    showList("");
    type(kPage, "txtFrom", ",1-a-,2,, 3");
    EXPECT_EQ(box().text(), "1-2,3");
    QTest::keyClick(&box(), Qt::Key_Backspace);
    EXPECT_EQ(box().text(), "1-2,");
}

} // namespace
} // namespace tavrelion::tests
