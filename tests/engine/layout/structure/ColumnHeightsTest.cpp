#include "layout/structure/ColumnHeights.h"

#include "engine/layout/structure/SectionSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::SectionStart;
using tests::addLine;
using tests::makeDraft;
using tests::sectionsOf;

/// One page of two bands of columns, one above the other; lines at these baselines in each column. The upper band ends
/// with its longest column.
DocumentDraft draftOfColumns(const std::vector<std::vector<double>>& upper,
                             const std::vector<std::vector<double>>& lower) {
    DocumentDraft draft = makeDraft(1);
    const double bottom = std::max(upper[0].back(), upper[1].back()) + 2.5;
    draft.pages[0].bands = {{72, bottom, {{72, 285.5}, {309.5, 523}}, false},
                            {220, 400, {{72, 285.5}, {309.5, 523}}, false}};
    int band = 0;
    for (const auto* columns : {&upper, &lower}) {
        for (int column = 0; column < 2; ++column)
            for (const double baseline : columns->at(static_cast<std::size_t>(column))) {
                addLine(draft, 0, column == 0 ? 72 : 309.5, baseline);
                draft.blocks.back().band = band;
                draft.blocks.back().column = column;
                draft.blocks.back().paragraph()->pieces[0].band = band;
                draft.blocks.back().paragraph()->pieces[0].columnIndex = column;
            }
        ++band;
    }
    return draft;
}

TEST(ColumnHeights, CountsColumnsFromTheSideWhereTheFirstStands) {
    DocumentContext context;
    context.isRightToLeft = true;
    DocumentDraft fromLeft = draftOfColumns({{84, 96}, {84, 96}}, {{240, 252}, {240, 252}});
    sectionsOf(fromLeft, {}, context);
    EXPECT_FALSE(fromLeft.sections.at(0).setup.isRightToLeft) << "Latin words in columns of a Hebrew document";

    DocumentDraft fromRight = draftOfColumns({{84, 96}, {84, 96}}, {{240, 252}, {240, 252}});
    for (Band& band : fromRight.pages[0].bands)
        std::swap(band.columns.front(), band.columns.back());
    sectionsOf(fromRight, {}, context);
    EXPECT_TRUE(fromRight.sections.at(0).setup.isRightToLeft);
}

TEST(ColumnHeights, MakesASectionOfEachBandOfColumns) {
    DocumentDraft draft = draftOfColumns({{84, 96}, {84, 96}}, {{240, 252}, {240, 252}});
    sectionsOf(draft);
    ASSERT_EQ(draft.sections.size(), 2u);
    EXPECT_EQ(draft.sections[1].firstBlock, 4u);
    EXPECT_EQ(draft.sections[1].setup.start, SectionStart::Continuous);
}

TEST(ColumnHeights, BreaksColumnsThatAreNotOfOneHeight) {
    DocumentDraft even = draftOfColumns({{84, 96, 108}, {84, 96, 108}}, {{240}, {240}});
    sectionsOf(even);
    EXPECT_FALSE(even.blocks[3].startsColumn) << "they come out so of themselves";
    DocumentDraft uneven = draftOfColumns({{84, 96, 108, 120, 132, 198}, {84, 96}}, {{240}, {240}});
    sectionsOf(uneven);
    EXPECT_TRUE(uneven.blocks[6].startsColumn);
}

TEST(ColumnHeights, KeepsColumnsOfLinesEndedByHandAsTheyAre) {
    const std::vector<std::vector<double>> upper{{84, 96, 108, 120}, {84, 96, 108}};
    DocumentDraft addresses = draftOfColumns(upper, {{240}, {240}});
    sectionsOf(addresses);
    EXPECT_TRUE(addresses.blocks[4].startsColumn) << "a line more on the left";
    DocumentDraft text = draftOfColumns(upper, {{240}, {240}});
    text.blocks[2].paragraph()->pieces[0].text.alignment = document::Alignment::Justified;
    sectionsOf(text);
    EXPECT_FALSE(text.blocks[4].startsColumn) << "text that flows may end a line later";
}

TEST(ColumnHeights, BreaksColumnsOfLinesAtUnevenDistances) {
    // A label, its value close below it, and the next pair: no program is sure to end them where they ended.
    const std::vector<std::vector<double>> upper{{84, 96, 132, 144}, {84, 96, 132, 144}};
    DocumentDraft pairs = draftOfColumns(upper, {{240}, {240}});
    sectionsOf(pairs);
    EXPECT_TRUE(pairs.blocks[4].startsColumn);
    DocumentDraft text = draftOfColumns(upper, {{240}, {240}});
    text.blocks[2].paragraph()->pieces[0].text.alignment = document::Alignment::Justified;
    sectionsOf(text);
    EXPECT_FALSE(text.blocks[4].startsColumn) << "text that flows";
}

TEST(ColumnHeights, BreaksBeforeATableHoweverEvenTheColumnsAre) {
    DocumentDraft draft = draftOfColumns({{84, 96, 108}, {84}}, {{240}, {240}});
    draft.blocks[2].paragraph()->pieces[0].text.alignment = document::Alignment::Justified;
    DraftBlock table = tests::tableAt(0, 74, true);
    table.box = {309.5, 74, 523, draft.blocks[2].box.bottom};
    table.column = 1;
    DocumentDraft text = draft;
    text.blocks[3].box = table.box;
    sectionsOf(text);
    EXPECT_FALSE(text.blocks[3].startsColumn);
    draft.blocks[3] = table;
    sectionsOf(draft);
    EXPECT_TRUE(draft.blocks[3].startsColumn) << "or rows of it would come below the text";
}

TEST(ColumnHeights, MakesContinuousSectionsOfColumns) {
    DocumentDraft draft = makeDraft(1);
    draft.pages[0].bands = {{72, 100, {tests::kColumn}, false},
                            {110, 400, {{72, 285.5}, {309.5, 523}}, true},
                            {420, 500, {tests::kColumn}, false}};
    const struct {
        double left;
        double baseline;
        int band;
        int column;
    } lines[] = {{72, 84, 0, 0}, {72, 120, 1, 0}, {72, 140, 1, 0}, {309.5, 120, 1, 1}, {72, 430, 2, 0}};
    for (const auto& line : lines) {
        addLine(draft, 0, line.left, line.baseline);
        draft.blocks.back().band = line.band;
        draft.blocks.back().column = line.column;
        draft.blocks.back().paragraph()->pieces[0].band = line.band;
        draft.blocks.back().paragraph()->pieces[0].columnIndex = line.column;
    }
    sectionsOf(draft);
    ASSERT_EQ(draft.sections.size(), 3u);
    EXPECT_EQ(draft.sections[1].firstBlock, 1u);
    EXPECT_EQ(draft.sections[1].setup.start, SectionStart::Continuous);
    ASSERT_EQ(draft.sections[1].setup.columns.size(), 2u);
    EXPECT_TRUE(draft.sections[1].setup.hasColumnSeparator);
    EXPECT_NEAR(draft.blocks[3].paragraph()->pieces[0].column.left, 309.5, 0.1);
    EXPECT_TRUE(draft.blocks[3].startsColumn) << "the first column had room";
    EXPECT_EQ(draft.sections[2].firstBlock, 4u);
}

} // namespace
} // namespace orvane::layout
