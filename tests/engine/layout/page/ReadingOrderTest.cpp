#include "layout/page/ReadingOrder.h"

#include "engine/layout/TextBuilder.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

/// A column of lines from `top` down to `bottom`, 14 points apart.
Region columnOf(int index, ColumnSpan span, double top, double bottom) {
    Region region{0, index, span, {}, {}};
    for (double baseline = top + 8; baseline <= bottom; baseline += 14) {
        region.lines.push_back(tests::makeLine("a few words of a line", span.left, baseline));
        region.lines.back().box.right = span.right;
        region.box = region.box.united(region.lines.back().box);
    }
    return region;
}

TEST(ReadingOrder, LeavesATableAtTheHeadOfItsColumn) {
    PageRegions page;
    page.bands.push_back({70, 700, {{72, 290}, {310, 523}}, false});
    page.regions.push_back(columnOf(0, {72, 290}, 200, 700));
    page.regions.push_back(columnOf(1, {310, 523}, 70, 700));
    const PageObject table{{80, 70, 280, 180}, 0, 0};
    const std::vector<ObjectPlace> places = placeObjects(std::span(&table, 1), page, {});
    ASSERT_EQ(places.size(), 1u);
    EXPECT_EQ(places[0].region, 0u) << "lines of the other column stand as high as it does";
    EXPECT_EQ(places[0].beforeLine, 0u);
    EXPECT_TRUE(places[0].standsAlone);
}

} // namespace
} // namespace orvane::layout
