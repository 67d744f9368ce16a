#include "layout/structure/ColumnSetup.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

const Rect kArea{72, 72, 523, 770};
const StructureParameters::PageSetup kLimits;

TEST(ColumnSetup, FindsColumnsOfEqualWidth) {
    // Ragged lines end before the edges of columns of 213.5 points with 24 between them.
    const auto columns = fitColumns({{{72, 270}}, {{309.5, 510}}}, kArea, kLimits);
    ASSERT_EQ(columns.size(), 2u);
    EXPECT_NEAR(columns[0].right, 285.5, 0.01);
    EXPECT_NEAR(columns[1].right, 523, 0.01);
    const auto widths = columnWidths(columns);
    EXPECT_EQ(widths[0].width, twipsFromPoints(213.5));
    EXPECT_EQ(widths[0].spaceAfter, twipsFromPoints(24));
    EXPECT_EQ(widths[1].spaceAfter, Twips(0));
}

TEST(ColumnSetup, KeepsColumnsOfDifferentWidth) {
    const auto columns = fitColumns({{{72, 180}}, {{200, 520}}}, kArea, kLimits);
    ASSERT_EQ(columns.size(), 2u);
    EXPECT_NEAR(columns[0].right, 180, 0.01);
    EXPECT_NEAR(columns[1].left, 200, 0.01);
    EXPECT_NEAR(columns[1].right, 523, 0.01);
}

TEST(ColumnSetup, OpensColumnsWhoseLinesEndByHand) {
    const auto columns =
        fitColumns({{{72, 180}, ColumnLines::EndedByHand}, {{372, 480}, ColumnLines::EndedByHand}}, kArea, kLimits);
    ASSERT_EQ(columns.size(), 2u);
    EXPECT_NEAR(columns[0].right, 372 - kLimits.smallestColumnGap, 0.01);
    EXPECT_NEAR(columns[1].left, 372, 0.01);
}

TEST(ColumnSetup, KeepsTheReadingOrderFromRightToLeft) {
    const auto columns = fitColumns({{{309.5, 523}}, {{72, 285}}}, kArea, kLimits);
    ASSERT_EQ(columns.size(), 2u);
    EXPECT_GT(columns[0].left, columns[1].left);
    EXPECT_EQ(columnWidths(columns)[0].spaceAfter, twipsFromPoints(24));
}

TEST(ColumnSetup, TakesTheTextAreaForASingleColumn) {
    const auto columns = fitColumns({{{80, 300}}}, kArea, kLimits);
    ASSERT_EQ(columns.size(), 1u);
    EXPECT_EQ(columns[0].right, 523);
    EXPECT_TRUE(columnWidths(columns).empty());
}

} // namespace
} // namespace orvane::layout
