#include "layout/tables/TableGrid.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

TableGrid twoByTwo(std::vector<GridCell> cells) {
    return {{0, 10, 20}, {0, 5, 10}, std::move(cells)};
}

TEST(TableGrid, IsTiledByItsCells) {
    EXPECT_TRUE(tilesGrid(twoByTwo({{0, 0, 1, 2}, {1, 0, 1, 1}, {1, 1, 1, 1}})));
}

TEST(TableGrid, IsNotTiledWithAHole) {
    EXPECT_FALSE(tilesGrid(twoByTwo({{0, 0, 1, 2}, {1, 0, 1, 1}})));
}

TEST(TableGrid, IsNotTiledWithAnOverlap) {
    EXPECT_FALSE(tilesGrid(twoByTwo({{0, 0, 2, 1}, {0, 0, 1, 1}, {0, 1, 1, 1}, {1, 1, 1, 1}})));
    EXPECT_FALSE(tilesGrid(twoByTwo({{0, 0, 2, 2}, {1, 1, 1, 1}})));
}

TEST(TableGrid, IsNotTiledByCellsThatReachBeyondIt) {
    EXPECT_FALSE(tilesGrid(twoByTwo({{0, 0, 2, 1}, {0, 1, 2, 2}})));
    EXPECT_FALSE(tilesGrid(twoByTwo({{0, 0, 2, 1}, {0, 1, 0, 1}})));
}

TEST(TableGrid, NamesTheIntervalOfAValue) {
    const std::vector<double> edges{0, 10, 20};
    EXPECT_EQ(intervalAt(edges, 3), 0);
    EXPECT_EQ(intervalAt(edges, 10), 1);
    EXPECT_EQ(intervalAt(edges, -1), -1);
    EXPECT_EQ(intervalAt(edges, 21), -1);
}

} // namespace
} // namespace orvane::layout
