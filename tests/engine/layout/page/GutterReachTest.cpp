#include "layout/page/GutterReach.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

/// A line of 10 points from `left` to `right` whose top is at `top`.
Line lineAt(double left, double right, double top) {
    Line line;
    line.fontSize = 10;
    line.baseline = top + 8;
    line.box = {left, top, right, top + 10};
    Word word;
    word.box = line.box;
    line.words.push_back(word);
    return line;
}

/// Two columns of ten lines, 50 to 290 and 310 to 550, and what stands below them.
double bottomWith(std::vector<Line> below) {
    std::vector<Line> lines;
    for (int row = 0; row < 10; ++row) {
        lines.push_back(lineAt(50, 290, 100 + 12 * row));
        lines.push_back(lineAt(310, 550, 100 + 12 * row));
    }
    for (Line& line : below)
        lines.push_back(line);
    ColumnGutter gutter{290, 310, 100, 218, 10, 10};
    extendOverNeighbours(gutter, lines, PageParameters::Regions{});
    return gutter.bottom;
}

TEST(GutterReach, FollowsAColumnThatIsLongerThanItsNeighbour) {
    EXPECT_EQ(bottomWith({lineAt(50, 120, 220)}), 230) << "the next line of the same paragraph";
    EXPECT_EQ(bottomWith({lineAt(60, 290, 240), lineAt(50, 150, 252)}), 262) << "another paragraph";
    EXPECT_EQ(bottomWith({lineAt(50, 120, 240), lineAt(50, 290, 254)}), 264) << "a heading and its paragraph";
}

TEST(GutterReach, NarrowsForALongerLineOfARaggedColumn) {
    std::vector<Line> lines;
    for (int row = 0; row < 10; ++row) {
        lines.push_back(lineAt(50, 150, 100 + 12 * row));
        lines.push_back(lineAt(310, 550, 100 + 12 * row));
    }
    lines.push_back(lineAt(50, 190, 220));
    lines.push_back(lineAt(50, 120, 232));
    ColumnGutter gutter{150, 310, 100, 218, 10, 10};
    extendOverNeighbours(gutter, lines, PageParameters::Regions{});
    EXPECT_EQ(gutter.bottom, 242);
    EXPECT_EQ(gutter.left, 190) << "no word of the line is beyond the gutter";
}

TEST(GutterReach, LeavesWhatIsNoTextOfTheColumn) {
    EXPECT_EQ(bottomWith({lineAt(50, 120, 240)}), 218) << "a short line set off from the columns";
    EXPECT_EQ(bottomWith({lineAt(50, 290, 250)}), 218) << "too far away";
    EXPECT_EQ(bottomWith({lineAt(50, 550, 220)}), 218) << "a line across the gutter";
}

TEST(GutterReach, ReachesUpwardsToo) {
    std::vector<Line> lines{lineAt(310, 550, 60), lineAt(310, 400, 72)};
    for (int row = 0; row < 10; ++row) {
        lines.push_back(lineAt(50, 290, 100 + 12 * row));
        lines.push_back(lineAt(310, 550, 100 + 12 * row));
    }
    ColumnGutter gutter{290, 310, 100, 218, 10, 10};
    extendOverNeighbours(gutter, lines, PageParameters::Regions{});
    EXPECT_EQ(gutter.top, 60);
}

/// Where the text begins below `heads`, which stand over two columns of ten lines from 200 on.
std::optional<double> endOfHeads(std::vector<Line> heads) {
    std::vector<Line> lines = std::move(heads);
    for (int row = 0; row < 10; ++row) {
        lines.push_back(lineAt(50, 290, 200 + 12 * row));
        lines.push_back(lineAt(310, 550, 200 + 12 * row));
    }
    return findEndOfHeads({290, 310, 100, 318, 10, 10}, lines, PageParameters::Regions{});
}

TEST(GutterReach, FindsBlocksThatStandCentredOverTheColumns) {
    const std::vector<Line> names{lineAt(130, 210, 150), lineAt(390, 470, 150), lineAt(100, 240, 162),
                                  lineAt(360, 500, 162)};
    EXPECT_EQ(endOfHeads(names), 186) << "in the middle of the blank";
    std::vector<Line> nearer = names;
    for (const double left : {100.0, 360.0})
        nearer.push_back(lineAt(left, left + 140, 184));
    EXPECT_EQ(endOfHeads(nearer), std::nullopt) << "no blank before the columns";
}

TEST(GutterReach, LeavesHeadingsToTheirColumn) {
    EXPECT_EQ(endOfHeads({lineAt(130, 210, 170), lineAt(390, 470, 170)}), std::nullopt) << "one line each";
    EXPECT_EQ(endOfHeads({lineAt(50, 130, 150), lineAt(310, 390, 150), lineAt(50, 130, 162), lineAt(310, 390, 162)}),
              std::nullopt)
        << "not centred";
    EXPECT_EQ(endOfHeads({lineAt(130, 210, 150), lineAt(100, 240, 162)}), std::nullopt) << "over one column only";
}

} // namespace
} // namespace orvane::layout
