#include "layout/structure/TextEdges.h"

#include "engine/layout/structure/SectionSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;
using tests::sectionsOf;

TEST(TextEdges, ReadsTheEndEdgeThatMostLinesAgreeOn) {
    DocumentDraft draft = makeDraft(1);
    // Forty letters of five points each, and a word that had no room behind them.
    const std::string full(80, 'x');
    for (int i = 0; i < 6; ++i)
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine(full, 72, 84 + 30 * i), makeLine("overflowing", 72, 96 + 30 * i)})));
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine(std::string(95, 'x'), 72, 300)}))); // in a box of its own
    sectionsOf(draft);
    const double end = 595 - pointsFromTwips(draft.sections.at(0).setup.marginRight);
    EXPECT_GE(end, 72 + 400);
    EXPECT_LT(end, 72 + 400 + 57.5) << "else the next word would have had room";
}

TEST(TextEdges, LetATableThatIsReadFromTheRightReachIntoTheLeftMargin) {
    for (const bool isRightToLeft : {false, true}) {
        DocumentDraft draft = makeDraft(1);
        DraftTable table;
        table.table.columnEdges = {10, 270, 530};
        table.table.rowEdges = {100, 120};
        table.table.box = {10, 100, 530, 120};
        table.table.isRightToLeft = isRightToLeft;
        DraftBlock& block = draft.blocks.emplace_back();
        block.box = table.table.box;
        block.value = std::move(table);
        sectionsOf(draft);
        const document::Section& setup = draft.sections.at(0).setup;
        EXPECT_EQ(setup.marginRight, twipsFromPoints(595 - 530));
        EXPECT_EQ(setup.marginLeft, twipsFromPoints(isRightToLeft ? 10 : 595 - 530));
    }
}

TEST(TextEdges, PrefersMarginsOfOneWidthThoughALineWasEndedByHand) {
    DocumentDraft draft = makeDraft(1);
    const std::string full(90, 'x'); // 450 points, so that less than a point is free before the right margin
    for (int i = 0; i < 20; ++i)
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine(full, 72, 84 + 30 * i), makeLine("overflowing", 72, 96 + 30 * i)})));
    draft.blocks.push_back(
        makeBlock(makeParagraph({makeLine(std::string(80, 'x'), 72, 700), makeLine("by hand", 72, 712)})));
    sectionsOf(draft);
    const document::Section& setup = draft.sections.at(0).setup;
    EXPECT_EQ(setup.marginRight, setup.marginLeft);
}

TEST(TextEdges, LetsEastAsianFullStopsHangOverTheEndEdge) {
    DocumentDraft draft = makeDraft(1);
    for (int i = 0; i < 20; ++i) {
        Line hanging = makeLine("一二。", 72, 84 + 30 * i);
        hanging.box.right = 523 + 8;
        draft.blocks.push_back(makeBlock(makeParagraph({hanging, makeLine("三", 72, 96 + 30 * i)})));
    }
    sectionsOf(draft);
    const document::Section& setup = draft.sections.at(0).setup;
    EXPECT_EQ(setup.marginRight, setup.marginLeft);
}

TEST(TextEdges, ReadsNoEndEdgeFromLinesMuchNarrowerThanOthers) {
    DocumentDraft draft = makeDraft(1);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine(std::string(80, 'x'), 72, 84)})));
    for (int i = 0; i < 6; ++i)
        draft.blocks.push_back(
            makeBlock(makeParagraph({makeLine("w", 72, 114 + 30 * i), makeLine("w", 72, 126 + 30 * i)})));
    sectionsOf(draft);
    EXPECT_LT(pointsFromTwips(draft.sections.at(0).setup.marginRight), 595 - (72 + 400));
}

} // namespace
} // namespace orvane::layout
