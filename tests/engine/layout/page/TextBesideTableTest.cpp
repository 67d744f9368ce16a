#include "layout/page/TextBesideTable.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;

constexpr Rect kTable{300, 100, 500, 150};

std::optional<TextBesideTable> beside(std::vector<Line> lines) {
    std::sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
    return findTextBesideTable(lines, std::vector<Rect>{kTable}, {});
}

std::vector<Line> address() {
    return {makeLine("Federal Republic of Examples", 50, 96), makeLine("Ministry of Foreign Affairs", 50, 108),
            makeLine("Consulate General in Sample", 50, 120)};
}

TEST(TextBesideTable, IsAnAddressBesideABox) {
    const auto found = beside(address());
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->isTextLeft);
    EXPECT_LT(found->top, 96) << "its first line stands higher than the box";
    EXPECT_EQ(found->bottom, 150);
}

TEST(TextBesideTable, IsNoneThatFlowsAroundTheTable) {
    std::vector<Line> lines = address();
    lines.push_back(makeLine("This line of the same paragraph goes on above the table and over its width", 50, 84));
    EXPECT_FALSE(beside(lines));
    lines.back() = makeLine("This line far above leads over the width of the table and much beyond it ..", 50, 60);
    EXPECT_TRUE(beside(lines));
}

TEST(TextBesideTable, IsNoneOnBothSides) {
    std::vector<Line> lines = address();
    lines.push_back(makeLine("Page", 510, 120));
    EXPECT_FALSE(beside(lines));
}

TEST(TextBesideTable, HoldsNoSignsAlone) {
    std::vector<Line> lines = address();
    lines.push_back(makeLine("Xe", 280, 132));
    EXPECT_FALSE(beside(lines)) << "a letter that fell out of the table";
}

} // namespace
} // namespace orvane::layout
