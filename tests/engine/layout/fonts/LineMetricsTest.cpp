#include "layout/fonts/LineMetrics.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::LineSpacing;
using document::LineSpacingRule;

/// Three lines of Carlito at 10 points, whose single spacing is 12.21 points.
std::optional<LineSpacing> givenAt(double leading, const char* font = "Carlito", const char* word = "word") {
    DocumentDraft draft = tests::makeDraft(1);
    draft.pages[0].fonts[0].name = draft.pages[0].fonts[0].family = font;
    draft.blocks.push_back(
        tests::makeBlock(tests::makeParagraph({tests::makeLine(word, 72, 100), tests::makeLine(word, 72, 100 + leading),
                                               tests::makeLine(word, 72, 100 + 2 * leading)})));
    return lineSpacingOf(*draft.blocks[0].paragraph(), FontCatalog(draft, FontParameters()), {});
}

LineSpacing spacingAt(double leading, const char* font = "Carlito", const char* word = "word") {
    return givenAt(leading, font, word).value();
}

TEST(LineMetrics, ReadsTheMultipleThatTheAuthorChose) {
    EXPECT_DOUBLE_EQ(spacingAt(12.2).multiple, 1.0);
    EXPECT_DOUBLE_EQ(spacingAt(14.04).multiple, 1.15);
    EXPECT_DOUBLE_EQ(spacingAt(18.3).multiple, 1.5);
    EXPECT_DOUBLE_EQ(spacingAt(17.3).multiple, 341.0 / 240)
        << "an odd one is kept, in hundredths, rounded up to what is written";
}

TEST(LineMetrics, MeasuresThePitchOverAllLines) {
    // Pages of many lines: 12.33 for 12.21 points would push the last of fifty down by half a line.
    DocumentDraft draft = tests::makeDraft(1);
    draft.pages[0].fonts[0].name = draft.pages[0].fonts[0].family = "Carlito";
    std::vector<Line> lines;
    for (const double step : {0.0, 12.3, 24.7, 37.0, 49.4, 61.7}) // 12.34 points, told coarsely
        lines.push_back(tests::makeLine("word", 72, 100 + step));
    draft.blocks.push_back(tests::makeBlock(tests::makeParagraph(std::move(lines))));
    const auto spacing = lineSpacingOf(*draft.blocks[0].paragraph(), FontCatalog(draft, FontParameters()), {});
    ASSERT_TRUE(spacing);
    EXPECT_DOUBLE_EQ(spacing->multiple, 243.0 / 240);
}

TEST(LineMetrics, SetsExactHeightsForFontsThatNothingStandsInFor) {
    const LineSpacing spacing = spacingAt(17.3, "Nobodys Sans", "ქართული");
    EXPECT_EQ(spacing.rule, LineSpacingRule::Exact);
    EXPECT_EQ(spacing.height, Twips(346));
}

TEST(LineMetrics, SetsExactHeightsForLinesCloserThanSingleOnes) {
    EXPECT_EQ(spacingAt(7).rule, LineSpacingRule::Exact);
    EXPECT_EQ(spacingAt(10).height, Twips(200));
    EXPECT_EQ(spacingAt(11.9).rule, LineSpacingRule::Multiple) << "the font's lines may be lower than thought";
    EXPECT_EQ(spacingAt(12, "Noto Sans CJK JP", "日本語の文章").rule, LineSpacingRule::Multiple);
    EXPECT_FALSE(givenAt(4)) << "most of each would be cut off";
}

TEST(LineMetrics, CountsWithTheSizeThatIsWritten) {
    DocumentDraft draft = tests::makeDraft(1);
    const FontCatalog fonts(draft, FontParameters());
    const auto heightAt = [&](double size) {
        return extentOf(tests::makeLine("word", 72, 100, {.size = size}), 0, fonts).height();
    };
    EXPECT_DOUBLE_EQ(heightAt(10.909), heightAt(11)) << "word processors know half points only";
    EXPECT_LT(heightAt(10.6), heightAt(11));
}

TEST(LineMetrics, KnowsTheLinesOfBoldLettersThatAreHigher) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.pages[0].fonts[0].name = draft.pages[0].fonts[0].family = "DejaVu Serif";
    const FontCatalog fonts(draft, FontParameters());
    const auto ascentOf = [&](bool isBold) {
        return extentOf(tests::makeLine("word", 72, 100, {.size = 20, .isBold = isBold}), 0, fonts).ascent;
    };
    EXPECT_NEAR(ascentOf(false), 20 * 0.928, 0.025);
    EXPECT_NEAR(ascentOf(true), 20 * 0.939, 0.025);
}

TEST(LineMetrics, SetsEastAsianLinesOnTheirGrid) {
    const LineSpacing spacing = spacingAt(18.04, "Noto Sans CJK JP", "日本語の文章");
    EXPECT_EQ(spacing.rule, LineSpacingRule::Exact);
    EXPECT_EQ(spacing.height, Twips(360)) << "a hair off what people type";
    EXPECT_EQ(spacingAt(17.32, "Noto Sans CJK JP", "日本語の文章").height, Twips(346));
    EXPECT_EQ(spacingAt(17.3, "Noto Sans CJK JP", "words").rule, LineSpacingRule::Multiple) << "Latin text has no grid";
}

TEST(LineMetrics, KnowsWhereWordProcessorsPutTheSurplus) {
    const LineExtent natural{9, 3};
    const LineExtent doubled = spacedExtent(natural, {LineSpacingRule::Multiple, 2.0, {}});
    EXPECT_DOUBLE_EQ(doubled.ascent, 9);
    EXPECT_DOUBLE_EQ(doubled.descent, 15);
    const LineExtent exact = spacedExtent(natural, {LineSpacingRule::Exact, 1, Twips(600)});
    EXPECT_DOUBLE_EQ(exact.ascent, 24);
    EXPECT_DOUBLE_EQ(exact.descent, 6);
    const LineExtent atLeast = spacedExtent(natural, {LineSpacingRule::AtLeast, 1, Twips(600)});
    EXPECT_DOUBLE_EQ(atLeast.ascent, 27);
    EXPECT_DOUBLE_EQ(atLeast.descent, 3);
    EXPECT_DOUBLE_EQ(spacedExtent(natural, {LineSpacingRule::AtLeast, 1, Twips(100)}).height(), 12);
}

} // namespace
} // namespace orvane::layout
