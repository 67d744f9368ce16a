#include "engine/layout/PageReading.h"

#include "base/Utf8.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;
using tests::linesOf;
using tests::read;

/// The only line of a page on which `visual` stands from left to right, after two lines that make the page a Hebrew
/// one.
Line lineOf(const std::string& visual) {
    PageContentBuilder page;
    page.text(72, 700, "\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7\u05D8\u05D9\u05DB\u05DC\u05DE\u05E0", 12);
    page.text(72, 720, "\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7\u05D8\u05D9\u05DB\u05DC\u05DE\u05E0", 12);
    page.text(72, 100, visual, 12);
    return read(page).lines.at(0);
}

TEST(LogicalOrder, ReadsRightToLeftTextFromItsRight) {
    struct Row {
        const char* visual; ///< from left to right on the page
        const char* logical;
        const char* why;
    };
    const Row rows[] = {
        {"\u05D3\u05D2 \u05D1\u05D0", "\u05D0\u05D1 \u05D2\u05D3", "words and letters turn"},
        {".\u05D1\u05D0", "\u05D0\u05D1.", "a full stop stands on the left"},
        {"\u05D3\u05D2 2024 \u05D1\u05D0", "\u05D0\u05D1 2024 \u05D2\u05D3", "numbers keep their order"},
        {"\u05D3\u05D2 10-12 \u05D1\u05D0", "\u05D0\u05D1 10-12 \u05D2\u05D3", "and so do ranges"},
        {"\u05D3\u05D2 WRC-12 \u05D1\u05D0", "\u05D0\u05D1 WRC-12 \u05D2\u05D3", "and names with numbers"},
        {"\u05D3\u05D2 Hello world \u05D1\u05D0", "\u05D0\u05D1 Hello world \u05D2\u05D3", "Latin words keep theirs"},
        {"\u05D3\u05D2 50% \u05D1\u05D0", "\u05D0\u05D1 50% \u05D2\u05D3", "a percent sign belongs to its number"},
        {"\u05D1\u05D0 .1", "1. \u05D0\u05D1", "a label has its full stop on the left"},
        {".12", "12.", "also alone on its line"},
        {"\u05D3\u05D2 10 001 \u05D1\u05D0", "\u05D0\u05D1 10 001 \u05D2\u05D3", "digits in groups are one number"},
        {"\u05D3\u05D2 12 24 \u05D1\u05D0", "\u05D0\u05D1 24 12 \u05D2\u05D3", "two numbers are not"},
    };
    for (const Row& row : rows) {
        const Line line = lineOf(row.visual);
        EXPECT_EQ(textOf(line), row.logical) << row.why;
        EXPECT_TRUE(line.isRightToLeft) << row.why;
    }
}

TEST(LogicalOrder, LeavesSignsOfNumbersOnTheirSide) {
    for (const char* text : {".464", "-90,8", "+1 200", ".371**"}) {
        EXPECT_FALSE(lineOf(text).isRightToLeft) << text;
        EXPECT_EQ(textOf(lineOf(text)), text);
    }
}

TEST(LogicalOrder, ReadsAnEntryWithItsPageNumberOnTheLeftFromItsRight) {
    const Line entry = lineOf("20..............................Index");
    EXPECT_TRUE(entry.isRightToLeft);
    EXPECT_EQ(textOf(entry), "Index\t20");
    EXPECT_FALSE(lineOf("20 apples").isRightToLeft);
}

TEST(LogicalOrder, KeepsTheGroupsOfANumberTogether) {
    const Line line = lineOf("3 001 234");
    EXPECT_EQ(textOf(line), "3 001 234");
    for (const std::size_t word : {1u, 2u})
        EXPECT_EQ(line.words.at(word).blankBefore, U'\u00A0') << "word processors would turn them around otherwise";
}

TEST(LogicalOrder, TurnsBracketsByTheirShapeOrAsTyped) {
    // The same brackets on the page: one file says their shapes, the other what was typed.
    EXPECT_EQ(textOf(lineOf("\u05D3\u05D2 (\u05D1\u05D0)")), "(\u05D0\u05D1) \u05D2\u05D3");
    EXPECT_EQ(textOf(lineOf("\u05D3\u05D2 )\u05D1\u05D0(")), "(\u05D0\u05D1) \u05D2\u05D3");
}

/// A line of strings, painted one after the other; each stands on the left of the one before it, as in right-to-left
/// text.
Line lineOfStrings(const std::vector<std::string>& strings) {
    PageContentBuilder page;
    page.text(72, 700, "\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7\u05D8\u05D9\u05DB\u05DC\u05DE\u05E0", 12);
    double x = 400;
    for (const std::string& text : strings) {
        x -= PageContentBuilder::widthOf(text, 12);
        page.text(x, 100, text, 12);
    }
    return read(page).lines.at(0);
}

TEST(LogicalOrder, TurnsRangesThatWerePaintedFromRightToLeft) {
    EXPECT_EQ(textOf(lineOfStrings({"\u05D1\u05D0", "1164 ", "-", "960"})), "\u05D0\u05D1 1164-960");
    EXPECT_EQ(textOf(lineOfStrings({"\u05D1\u05D0", "12 ", "-", "10", "-", "2024"})), "\u05D0\u05D1 12-10-2024");
    EXPECT_EQ(textOf(lineOfStrings({"\u05D1\u05D0", "960-1164 "})), "\u05D0\u05D1 960-1164") << "painted as it is read";
    EXPECT_EQ(textOf(lineOfStrings({"\u05D1\u05D0", "4 ", "-", "3"})), "\u05D0\u05D1 3-4")
        << "all was painted leftwards: that tells nothing";
}

TEST(LogicalOrder, KeepsWhatWasPaintedAsOneStringTogether) {
    struct Row {
        std::vector<std::string> strings; ///< in the order of painting, which is that of reading
        const char* logical;
        const char* why;
    };
    const Row rows[] = {
        {{"\u05D1\u05D0", " ", "MHz 1 164-960", " ", "\u05D3\u05D2"},
         "\u05D0\u05D1 MHz 1 164-960 \u05D2\u05D3",
         "numbers behind a Latin word"},
        {{"\u05D1\u05D0", " ", "1 164", " ", "\u05D3\u05D2"},
         "\u05D0\u05D1 1 164 \u05D2\u05D3",
         "a number with a blank"},
        {{"\u05D1\u05D0", " ", "M.[A]", " ", "\u05D3\u05D2"},
         "\u05D0\u05D1 M.[A] \u05D2\u05D3",
         "a bracket at the end of a name"},
        {{"\u05D1\u05D0", " ", "2012", "."}, "\u05D0\u05D1 2012.", "a full stop that was painted behind its number"},
        {{"\u05D1\u05D0", "(", "1", ")", " ", "\u05D3\u05D2"},
         "\u05D0\u05D1(1) \u05D2\u05D3",
         "brackets without gaps that say what was typed"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(textOf(lineOfStrings(row.strings)), row.logical) << row.why;
}

TEST(LogicalOrder, TakesNumbersAndPunctuationForPartOfTheTextAroundThem) {
    const Line line = lineOf("\u05D3\u05D2 ,2024 Hello \u05D1\u05D0");
    ASSERT_EQ(textOf(line), "\u05D0\u05D1 Hello 2024, \u05D2\u05D3");
    EXPECT_FALSE(line.words[1].spans[0].isRightToLeft);
    ASSERT_EQ(line.words[2].spans.size(), 1u);
    EXPECT_TRUE(line.words[2].spans[0].isRightToLeft);
}

TEST(LogicalOrder, TellsTheDirectionOfEachWord) {
    const Line line = lineOf("\u05D3\u05D2 Hello \u05D1\u05D0");
    ASSERT_EQ(line.words.size(), 3u);
    EXPECT_TRUE(line.words[0].isRightToLeft);
    EXPECT_FALSE(line.words[1].isRightToLeft);
    EXPECT_GT(line.words[0].box.left, line.words[2].box.left);
}

TEST(LogicalOrder, KeepsRightToLeftWordsWithinLatinText) {
    PageContentBuilder page;
    page.text(72, 100, "The word \u05D1\u05D0 in English text", 12);
    const Line line = read(page).lines.at(0);
    EXPECT_EQ(textOf(line), "The word \u05D0\u05D1 in English text");
    EXPECT_FALSE(line.isRightToLeft);
}

TEST(LogicalOrder, FindsTheLeaderOfARightToLeftRow) {
    const Line line = lineOf("12.............\u05D1\u05D0");
    EXPECT_EQ(textOf(line), "\u05D0\u05D1\t12");
    EXPECT_EQ(line.words.at(1).leaderBefore, document::TabLeader::Dots);
}

} // namespace
} // namespace orvane::layout
