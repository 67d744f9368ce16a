#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using tests::linesOf;
using tests::read;

TEST(ClusterBuilder, WritesLigaturesInFull) {
    PageContentBuilder page;
    page.text(72, 100, "di\uFB00erent \uFB01le o\uFB03ce", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("different file office"));
}

TEST(ClusterBuilder, StandsSignsThatHangFromTheirOriginOnTheLineAroundThem) {
    PageContentBuilder page;
    double x = page.text(72, 100, "The sum ", 10);
    page.glyph(x, 92.5, U"\u2211", 11, 10);
    page.content().glyphs.back().ink = {x, 92.5, x + 10, 102.5};
    x = page.text(x + 12, 100, "of all", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("The sum \u2211of all"));
}

TEST(ClusterBuilder, JoinsCombiningMarks) {
    PageContentBuilder page;
    page.text(72, 100, "e\u0301tude", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("\u00E9tude"));
}

TEST(ClusterBuilder, JoinsAccentsPaintedOverTheirLetters) {
    PageContentBuilder page;
    double x = page.text(72, 100, "Universit", 12);
    page.glyph(x + 1, 100, U"\xA8", 4, 12);
    x = page.text(x, 100, "a", 12);
    page.text(x, 100, "t", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Universit\u00E4t"));
}

TEST(ClusterBuilder, ReadsArabicFormsAsLetters) {
    PageContentBuilder page;
    // Final meem, lam-alef, initial seen: "salaam" as it stands on the page.
    page.text(72, 100, "\uFEE1\uFEFC\uFEB3", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("\u0633\u0644\u0627\u0645"));
}

TEST(ClusterBuilder, DropsTheStrokesThatStretchArabic) {
    PageContentBuilder page;
    page.glyph(72, 100, U"\u0647", 7, 14);
    page.glyph(79, 100, U"", 4, 14);
    page.glyph(82, 100, U"", 4, 14);
    page.glyph(86, 100, U"\u0628", 4, 14);
    EXPECT_THAT(linesOf(page), ElementsAre("\u0628\u0647"));
}

TEST(ClusterBuilder, DropsThemAlsoWherePaintedFromTheRight) {
    PageContentBuilder page;
    page.glyph(86, 100, U"\u0628", 4, 14);
    page.glyph(82, 100, U"", 4, 14);
    page.glyph(78, 100, U"", 4, 14);
    page.glyph(71, 100, U"\u0647", 7, 14);
    EXPECT_THAT(linesOf(page), ElementsAre("\u0628\u0647"));
}

TEST(ClusterBuilder, DropsStrokesThatAreCalledASign) {
    PageContentBuilder page;
    page.glyph(72, 100, U"\u0647", 7, 14);
    for (const double x : {78.5, 82.5, 86.5})
        page.glyph(x, 100, U"\"", 5, 14);
    page.glyph(91, 100, U"\u0628", 4, 14);
    EXPECT_THAT(linesOf(page), ElementsAre("\u0628\u0647"));
}

TEST(ClusterBuilder, KeepsSignsBesideEachOther) {
    PageContentBuilder page;
    page.glyph(72, 100, U"\u0647", 7, 14);
    page.glyph(79, 100, U".", 3, 14);
    page.glyph(82, 100, U".", 3, 14);
    page.glyph(85, 100, U"\u0628", 4, 14);
    EXPECT_THAT(linesOf(page), ElementsAre("\u0628..\u0647"));
}

TEST(ClusterBuilder, KeepsUnknownCharactersAsSuch) {
    PageContentBuilder page;
    const double x = page.text(72, 100, "a", 12);
    page.glyph(x, 100, U"", 6, 12);
    page.text(x + 6, 100, "b", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("a\uFFFDb"));
}

TEST(ClusterBuilder, JoinsSurrogates) {
    PageContentBuilder page;
    page.glyph(72, 100, {0xD83D, 0xDE00}, 12, 12);
    EXPECT_THAT(linesOf(page), ElementsAre("\U0001F600"));
}

TEST(ClusterBuilder, LetsAMarkSayItsActualText) {
    PageContentBuilder page;
    pdf::Mark mark;
    mark.actualText = "fast";
    const int index = page.mark(mark);
    const double x = page.text(72, 100, "very ", 12);
    page.text(x, 100, "xy", 12, {.mark = index});
    EXPECT_THAT(linesOf(page), ElementsAre("very fast"));
}

TEST(ClusterBuilder, BelievesNoActualTextThatIsNone) {
    PageContentBuilder page;
    pdf::Mark mark;
    mark.actualText = "\uFFFD\uFFFD";
    const int index = page.mark(mark);
    page.text(72, 100, "12", 12, {.mark = index});
    EXPECT_THAT(linesOf(page), ElementsAre("12"));
}

TEST(ClusterBuilder, LeavesTextAloneThatSaysItsActualText) {
    PageContentBuilder page;
    pdf::Mark mark;
    mark.actualText = "hyphenated";
    const int index = page.mark(mark);
    page.text(72, 100, "hyphen-", 12, {.mark = index});
    page.text(72, 115, "ated", 12, {.mark = index});
    EXPECT_THAT(linesOf(page), ElementsAre("hyphen-", "ated"));
}

TEST(ClusterBuilder, GivesJoinersNoRoom) {
    PageContentBuilder page;
    pdf::Mark mark;
    mark.actualText = "\u200C";
    const int index = page.mark(mark);
    page.text(72, 100, "\u062E\u0648", 12);
    const double x = 72 + 2 * 12 * 0.55;
    page.text(x, 100, " ", 12, {.mark = index});
    page.text(x, 100, "\u06CC\u0645", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("\u0645\u06CC\u200C\u0648\u062E"));
}

} // namespace
} // namespace orvane::layout
