#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;

constexpr Rect kAtRight{300, 90, 520, 160};
constexpr Rect kAtLeft{75, 90, 295, 160};

/// Three lines of 40 letters, which are 200 points wide in a column of 72 to 523.
ParagraphDraft linesFrom(double left) {
    const std::string text = "some words that were broken a bit early,";
    return tests::makeParagraph({makeLine(text, left, 100), makeLine(text, left, 112), makeLine(text, left, 124)});
}

/// The indent at the end of a paragraph on a page with a figure that lies behind the text.
double endIndentOf(ParagraphDraft paragraph, const Rect& figure, bool isBackground = true) {
    DocumentDraft draft = tests::makeDraft(1);
    draft.blocks.push_back(tests::makePictureBlock(figure));
    auto& picture = std::get<FigureDraft>(draft.blocks.back().value);
    picture.isInline = false;
    picture.figure.isBackground = isBackground;
    draft.blocks.push_back(tests::makeBlock(std::move(paragraph)));
    const document::Document document = tests::documentOf(draft);
    const auto& text = std::get<document::Paragraph>(document.sections.at(0).blocks.at(1).value);
    return pointsFromTwips(text.properties.indentEnd);
}

TEST(BesideFigures, EndTextWhereItsLinesDid) {
    const double indent = endIndentOf(linesFrom(72), kAtRight);
    EXPECT_LT(indent, 523 - 272) << "a font may come out wider";
    EXPECT_GT(indent, 523 - 272 - 25) << "the next word must not come up";
    EXPECT_GT(endIndentOf(linesFrom(300), kAtLeft), 0) << "at its other side";
    EXPECT_GT(endIndentOf(linesFrom(72), {260, 90, 520, 160}), 0) << "a hair of the text stands on it";
}

TEST(BesideFigures, LeaveOtherTextTheWidthOfItsColumn) {
    EXPECT_EQ(endIndentOf(linesFrom(72), kAtRight, false), 0) << "text makes way for it by itself";
    EXPECT_EQ(endIndentOf(linesFrom(72), {300, 190, 520, 260}), 0) << "it stands below";
    EXPECT_EQ(endIndentOf(linesFrom(72), {110, 90, 520, 160}), 0) << "the text stands on it";
    EXPECT_EQ(endIndentOf(linesFrom(72), {500, 90, 580, 160}), 0) << "most of it stands beside the column";
    ParagraphDraft verse = linesFrom(72);
    verse.hardBreaks = {0, 1};
    EXPECT_EQ(endIndentOf(verse, kAtRight), 0) << "its lines were ended by hand";
    EXPECT_EQ(endIndentOf(tests::makeParagraph({makeLine("one line", 72, 100)}), kAtRight), 0);
}

} // namespace
} // namespace orvane::layout
