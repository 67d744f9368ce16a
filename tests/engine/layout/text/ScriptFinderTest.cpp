#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::VerticalPosition;
using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using tests::linesOf;
using tests::read;

TEST(ScriptFinder, KeepsScriptsInTheirWords) {
    PageContentBuilder page;
    double x = page.text(72, 100, "H", 10);
    x = page.text(x, 101.5, "2", 6);
    x = page.text(x, 100, "O and m", 10);
    x = page.text(x, 96, "2", 6);
    page.text(x, 100, " each", 10);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    const Line& line = text.lines[0];
    EXPECT_EQ(textOf(line), "H2O and m2 each");
    ASSERT_EQ(line.words[0].spans.size(), 3u);
    EXPECT_EQ(line.words[0].spans[1].look.verticalPosition, VerticalPosition::Subscript);
    EXPECT_EQ(line.words[0].spans[1].look.size, 10) << "the size of the text it belongs to";
    EXPECT_EQ(line.words[2].spans[1].look.verticalPosition, VerticalPosition::Superscript);
    EXPECT_EQ(line.baseline, 100);
    EXPECT_EQ(line.fontSize, 10);
}

TEST(ScriptFinder, KeepsTinyMarksInTheirLine) {
    PageContentBuilder page;
    double x = page.text(72, 100, "Orvane", 12);
    x = page.text(x, 96, "\u00AE", 3.6);
    page.text(x, 100, " reads", 12);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_EQ(textOf(text.lines[0]), "Orvane\u00AE reads");
    const Look& look = text.lines[0].words[0].spans.at(1).look;
    EXPECT_EQ(look.verticalPosition, VerticalPosition::Superscript);
    EXPECT_DOUBLE_EQ(look.size, 6) << "shrunk it is as small as it was";

    PageContentBuilder digit;
    x = digit.text(72, 100, "Orvane", 12);
    x = digit.text(x, 96, "2", 3.6);
    digit.text(x, 100, " reads", 12);
    EXPECT_EQ(read(digit).lines.size(), 2u) << "a number in a drawing, for instance";
}

TEST(ScriptFinder, KeepsShiftedLettersInTheirWords) {
    PageContentBuilder page;
    double x = page.text(72, 100, "See T", 10);
    x = page.text(x - 1.6, 102.3, "E", 10);
    x = page.text(x - 1.2, 100, "X on a", 10);
    x = page.text(x, 97.6, "_", 10);
    x = page.text(x, 100, "name", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("See TEX on a_name"));
}

TEST(ScriptFinder, RaisesLettersOfTheSameSize) {
    PageContentBuilder page;
    double x = page.text(72, 100, "in cm", 10);
    x = page.text(x, 96, "-1", 10);
    page.text(x, 100, ") here", 10);
    page.text(200, 96, "another column", 10);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 2u);
    const Line& line = textOf(text.lines[0]) == "in cm-1) here" ? text.lines[0] : text.lines[1];
    EXPECT_EQ(textOf(line), "in cm-1) here");
    ASSERT_EQ(line.words.at(1).spans.size(), 3u);
    EXPECT_EQ(line.words[1].spans[1].look.verticalPosition, VerticalPosition::Superscript);
    EXPECT_EQ(line.words[1].spans[2].look.verticalPosition, VerticalPosition::Baseline);
}

TEST(ScriptFinder, LeavesTheDotsOfAMatrixWhereTheyStand) {
    PageContentBuilder page;
    double x = page.text(72, 100, ".", 10);
    x = page.text(x, 96, ".", 10);
    page.text(x, 100, ".", 10);
    EXPECT_EQ(linesOf(page).size(), 2u);
}

TEST(ScriptFinder, LeavesLettersThatStandBesideOneLineOnly) {
    PageContentBuilder page;
    const double x = page.text(72, 100, "one", 10);
    page.text(x, 102.3, "E", 10);
    EXPECT_EQ(linesOf(page).size(), 2u) << "nothing tells which line it belongs to";
}

TEST(ScriptFinder, JoinsANoteMarkBeforeItsNote) {
    PageContentBuilder page;
    const double x = page.text(72, 696, "1", 5);
    page.text(x + 1, 700, "The text of a note", 8);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    EXPECT_EQ(text.lines[0].words[0].spans[0].look.verticalPosition, VerticalPosition::Superscript);
}

TEST(ScriptFinder, ReadsASubscriptBelowASuperscriptAfterIt) {
    PageContentBuilder page;
    const double x = page.text(72, 100, "x", 10);
    page.text(x, 96, "12", 6);
    page.text(x, 102, "ab", 6);
    EXPECT_THAT(linesOf(page), ElementsAre("x12ab"));
}

TEST(ScriptFinder, LeavesSmallTextOfItsOwnLineAlone) {
    PageContentBuilder page;
    page.text(72, 100, "Large heading", 20);
    page.text(72, 112, "small print below it", 8);
    EXPECT_THAT(linesOf(page), ElementsAre("Large heading", "small print below it"));
}

TEST(ScriptFinder, TakesAQuotationMarkBeforeADropCapForPartOfIt) {
    PageContentBuilder page;
    const double x = page.text(72, 128, "\xE2\x80\x9CO", 42);
    page.text(x + 2, 104, "nce upon a time there was", 10);
    page.text(x + 2, 116, "a letter that stood over", 10);
    page.text(x + 2, 128, "three lines of its text,", 10);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 3u);
    EXPECT_EQ(text.lines[0].dropCapLines, 3);
    EXPECT_EQ(textOf(text.lines[0]), "\xE2\x80\x9COnce upon a time there was");
}

TEST(ScriptFinder, CountsTheLinesBesideADropCap) {
    const struct {
        double leading;
        int lines;
    } rows[] = {{12, 3}, {24, 2}, {16, 3}};
    for (const auto& row : rows) {
        PageContentBuilder page;
        const double bottom = 104 + (row.lines - 1) * row.leading;
        const double x = page.text(72, bottom, "O", (bottom - 97) / 0.7);
        for (int line = 0; line < row.lines; ++line)
            page.text(x + 2, 104 + line * row.leading, "nce upon a time there was", 10);
        EXPECT_EQ(read(page).lines[0].dropCapLines, row.lines) << row.leading;
    }
}

TEST(ScriptFinder, PutsADropCapAtItsFirstLine) {
    PageContentBuilder page;
    const double x = page.text(72, 128, "O", 42);
    page.text(x + 2, 104, "nce upon a time there was", 10);
    page.text(x + 2, 116, "a letter that stood over", 10);
    page.text(x + 2, 128, "three lines of its text,", 10);
    page.text(72, 140, "and the fourth went on below it.", 10);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 4u);
    EXPECT_EQ(textOf(text.lines[0]), "Once upon a time there was");
    EXPECT_EQ(text.lines[0].dropCapLines, 3);
    EXPECT_EQ(text.lines[0].fontSize, 10);
    EXPECT_NEAR(text.lines[0].baseline, 104, 0.01);
    EXPECT_NEAR(text.lines[0].words[0].spans[0].baseline, 128, 0.01) << "the letter stays where it is";
    EXPECT_LT(text.lines[0].box.bottom, 110) << "and its line is no higher for it";
    EXPECT_EQ(textOf(text.lines[2]), "three lines of its text,");
}

} // namespace
} // namespace orvane::layout
