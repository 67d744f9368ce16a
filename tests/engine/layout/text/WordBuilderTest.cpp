#include "engine/layout/PageContentBuilder.h"
#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::tests::Blanks;
using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using tests::linesOf;

TEST(WordBuilder, EndsWordsAtPaintedBlanks) {
    PageContentBuilder page;
    page.text(72, 100, "Painted blanks part words", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Painted blanks part words"));
}

TEST(WordBuilder, EndsWordsAtGapsWhereBlanksAreNotPainted) {
    PageContentBuilder page;
    page.text(72, 100, "Gaps part words as well", 12, {.blanks = Blanks::Skipped});
    EXPECT_THAT(linesOf(page), ElementsAre("Gaps part words as well"));
}

TEST(WordBuilder, TakesBlanksThatWerePaintedApartFromTheWords) {
    PageContentBuilder page;
    const double second = 72 + PageContentBuilder::widthOf("One ", 12);
    page.text(72, 100, "One", 12);
    page.text(second, 100, "two", 12);
    page.text(72 + PageContentBuilder::widthOf("One", 12), 100, " ", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("One two"));
}

TEST(WordBuilder, CountsTheBlanksThatHaveRoom) {
    PageContentBuilder page;
    const double end = page.text(72, 100, "End.  New", 12);
    page.text(72, 130, "End. ", 12);
    page.text(72 + PageContentBuilder::widthOf("End.", 12), 130, " New", 12);
    EXPECT_GT(end, 72);
    const PageText text = tests::read(page);
    ASSERT_EQ(text.lines.size(), 2u);
    EXPECT_EQ(text.lines[0].words.at(1).blanksBefore, 2);
    EXPECT_EQ(text.lines[1].words.at(1).blanksBefore, 1) << "two blanks on top of each other";
}

TEST(WordBuilder, CountsTheBlanksThatArePaintedAtALinesEnd) {
    PageContentBuilder page;
    page.text(72, 100, "One end.  ", 12);
    page.text(72, 130, "Another", 12);
    const PageText text = tests::read(page);
    ASSERT_EQ(text.lines.size(), 2u);
    EXPECT_EQ(text.lines[0].words.at(0).blanksAfter, 0);
    EXPECT_EQ(text.lines[0].words.at(1).blanksAfter, 2);
    EXPECT_EQ(text.lines[1].words.at(0).blanksAfter, 0);
}

TEST(WordBuilder, KnowsBlanksThatWereTypedInPlaceOfATabulator) {
    PageContentBuilder page;
    page.text(72, 100, "Class          Names", 12);
    page.text(72, 130, "Class ", 12);
    page.text(150, 130, "Names", 12);
    const PageText text = tests::read(page);
    ASSERT_EQ(text.lines.size(), 2u);
    const Word& typed = text.lines[0].words.at(1);
    EXPECT_EQ(typed.gapBefore, Gap::Tab);
    EXPECT_TRUE(typed.isTypedBefore);
    EXPECT_EQ(typed.blanksBefore, 10);
    EXPECT_FALSE(text.lines[1].words.at(1).isTypedBefore) << "one blank, and then a jump";
}

TEST(WordBuilder, KeepsTheKindOfTypedBlanks) {
    PageContentBuilder page;
    page.text(72, 100, "2015\u3000\u3000\u3000\u3000\u4F01\u753B", 12);
    const PageText text = tests::read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    const Word& word = text.lines[0].words.at(1);
    EXPECT_TRUE(word.isTypedBefore);
    EXPECT_EQ(word.blanksBefore, 4);
    EXPECT_EQ(word.blankBefore, U'\u3000');
}

TEST(WordBuilder, KnowsTheStrokesThatStretchArabicWords) {
    PageContentBuilder page;
    page.glyph(72, 100, U"\u0645", 6, 12);
    page.glyph(78, 100, U"", 5, 12);
    page.glyph(83, 100, U"", 5, 12);
    page.glyph(88, 100, U"\u0628", 6, 12);
    page.glyph(72, 130, U"", 6, 12);
    page.text(78, 130, "a", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("\u0628\u0645", "\uFFFDa"));
}

TEST(WordBuilder, IgnoresBlanksThatLeaveNoRoom) {
    PageContentBuilder page;
    const double end = page.text(72, 100, "to", 12);
    page.text(end, 100, " ", 12);
    page.text(end, 100, "gether", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("together"));
}

TEST(WordBuilder, PartsWordsOfTwoWeightsAtAnyGap) {
    pdf::Font heavy;
    heavy.isBold = true;
    PageContentBuilder page;
    const std::uint32_t bold = page.font(heavy);
    double x = page.text(72, 100, "your", 12);
    page.text(x + 0.4, 100, "taxable income", 12, {.font = bold});
    x = page.text(72, 130, "the blank without room ", 12);
    page.text(x - 2.6, 130, "ends", 12, {.font = bold});
    x = page.text(72, 160, "un", 12, {.font = bold});
    page.text(x, 160, "likely letters", 12);
    x = page.text(72, 190, "values of y", 12);
    page.text(x + 0.4, 190, "w of formulas", 12, {.font = bold});
    EXPECT_THAT(linesOf(page), ElementsAre("your taxable income", "the blank without room ends", "unlikely letters",
                                           "values of yw of formulas"));
}

TEST(WordBuilder, KeepsLetterSpacedWordsWhole) {
    PageContentBuilder page;
    page.text(72, 100, "SPACED HEADING", 12, {.characterSpacing = 3});
    page.text(72, 130, "SPACED HEADING", 12, {.characterSpacing = 3, .blanks = Blanks::Skipped});
    EXPECT_THAT(linesOf(page), ElementsAre("SPACED HEADING", "SPACED HEADING"));
}

TEST(WordBuilder, EndsWordsAtBlanksBesideALetterSpacedWord) {
    PageContentBuilder page;
    const double end = page.text(72, 100, "Page", 12, {.characterSpacing = 3});
    page.text(end, 100, " 1 | 5", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Page 1 | 5"));
}

TEST(WordBuilder, KeepsALetterSpacedWordBesideNumbersWhole) {
    PageContentBuilder page;
    const double end = page.text(72, 100, "Seite", 12, {.characterSpacing = 3});
    page.text(end, 100, " 12 | 54", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Seite 12 | 54"));
}

TEST(WordBuilder, PartsSingleCharactersThatStandApart) {
    PageContentBuilder page;
    page.text(72, 100, "x = a + b", 12, {.blanks = Blanks::Skipped});
    EXPECT_THAT(linesOf(page), ElementsAre("x = a + b"));
}

TEST(WordBuilder, FindsWordsInTightlySetText) {
    PageContentBuilder page;
    page.text(72, 100, "condensed text has narrow blanks", 12, {.characterSpacing = -1.2});
    page.text(72, 130, "condensed text has narrow blanks", 12, {.characterSpacing = -1.2, .blanks = Blanks::Skipped});
    EXPECT_THAT(linesOf(page), ElementsAre("condensed text has narrow blanks", "condensed text has narrow blanks"));
}

TEST(WordBuilder, FindsWordsInJustifiedText) {
    PageContentBuilder page;
    page.text(72, 100, "wide blanks all along the line", 12, {.wordSpacing = 9});
    EXPECT_THAT(linesOf(page), ElementsAre("wide blanks all along the line"));
}

TEST(WordBuilder, PutsNoBlanksBetweenEastAsianCharacters) {
    PageContentBuilder page;
    page.text(72, 100, "\u65E5\u672C\u8A9E\u306E\u6587\u7AE0", 12, {.characterSpacing = 3});
    EXPECT_THAT(linesOf(page), ElementsAre("\u65E5\u672C\u8A9E\u306E\u6587\u7AE0"));
}

TEST(WordBuilder, PartsALabelFromEastAsianTextBesideIt) {
    struct Row {
        const char* label;
        double gap; ///< of the font size
        const char* expected;
        const char* why;
    };
    const Row rows[] = {
        {"\u2022", 0.15, "\u2022 \u65E5\u672C", "a bullet"},
        {"2.1.", 0.15, "2.1. \u65E5\u672C", "a number"},
        {"2.1", 0.25, "2.1\u65E5\u672C", "as far apart as any digits are"},
        {"2.1.", 0, "2.1.\u65E5\u672C", "typed without a gap"},
        {"Web", 0.25, "Web\u65E5\u672C", "letters of another script stand a little apart, and are no label"},
    };
    for (const Row& row : rows) {
        PageContentBuilder page;
        const double end = page.text(72, 100, row.label, 12);
        page.text(end + row.gap * 12, 100, "\u65E5\u672C", 12);
        EXPECT_THAT(linesOf(page), ElementsAre(row.expected)) << row.why;
    }
}

TEST(WordBuilder, PartsALabelInAColumnFurtherRight) {
    PageContentBuilder page;
    page.text(72, 100, "\u6587\u7AE0", 12);
    const double end = page.text(300, 100, "\u2022", 12);
    page.text(end + 0.2 * 12, 100, "\u65E5\u672C", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("\u6587\u7AE0\t\u2022 \u65E5\u672C"));
}

TEST(WordBuilder, PartsABulletOfAnotherFontFromTheTextCloseBehindIt) {
    struct Row {
        const char* sign;
        bool isOtherFont;
        const char* text;
        const char* expected;
        const char* why;
    };
    const Row rows[] = {
        {"\u25A0", true, "Open", "\u25A0 Open", "a bullet"},
        {"\u25A0", false, "Open", "\u25A0Open", "a sign of the text's own font"},
        {"-", true, "Open", "-Open", "a hyphen is no bullet"},
        {"\u25A0", true, "\u65E5\u672C", "\u25A0\u65E5\u672C", "East Asian text has other fonts than most signs"},
    };
    for (const Row& row : rows) {
        PageContentBuilder page;
        const std::uint32_t signs = page.font({});
        const double end = page.text(72, 100, row.sign, 12, {.font = row.isOtherFont ? signs : 0});
        page.text(end, 100, row.text, 12);
        EXPECT_THAT(linesOf(page), ElementsAre(row.expected)) << row.why;
    }
}

TEST(WordBuilder, PartsABulletOfAnotherFontBehindTheTextOfTheCellBefore) {
    PageContentBuilder page;
    const std::uint32_t signs = page.font({});
    const double text = page.text(72, 100, "Apples", 12);
    const double end = page.text(text + 6, 100, "\u25A0", 12, {.font = signs});
    page.text(end, 100, "Open", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Apples \u25A0 Open"));
}

TEST(WordBuilder, PartsABulletFromEastAsianTextBesideANumberInTheCellBefore) {
    PageContentBuilder page;
    const double number = page.text(72, 100, "3.1.1", 12);
    const double end = page.text(number + 6, 100, "\u2022", 12);
    page.text(end + 0.4 * 12, 100, "\u65E5\u672C", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("3.1.1 \u2022 \u65E5\u672C"));
}

TEST(WordBuilder, DoesNotMeasureLettersByTheDotsOfALeader) {
    PageContentBuilder page;
    page.text(72, 100, "Alimony received", 8);
    for (int i = 0; i < 12; ++i)
        page.text(200 + i * 12, 100, ".", 8);
    page.text(350, 100, "11", 8);
    EXPECT_THAT(linesOf(page), ElementsAre("Alimony received\t11"));
}

} // namespace
} // namespace orvane::layout
