#include "layout/page/ColumnStrips.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace orvane::layout {
namespace {

using tests::makeLine;

Rule upright(double x, double from, double to) {
    return tests::ruleAt(RuleDirection::Vertical, x, from, to);
}

/// Eight lines at each side of a rule, those at the right between those at the left.
PageText pageWithColumns() {
    PageText page = tests::makePage(1);
    for (int i = 0; i < 8; ++i) {
        page.lines.push_back(makeLine("Apples and pears", 50, 100 + 12 * i));
        page.lines.push_back(makeLine("Oaks and elms", 320, 105 + 12 * i));
    }
    page.rules.push_back(upright(300, 60, 60 + 0.6 * page.height));
    return page;
}

TEST(ColumnStrips, LieBetweenTheRulesFromTheTopToTheEndOfThese) {
    const PageText page = pageWithColumns();
    const std::vector<ColumnStrip> strips = findColumnStrips(page, {});
    ASSERT_EQ(strips.size(), 2U);
    EXPECT_EQ(strips[0].left, 0);
    EXPECT_EQ(strips[0].right, 300);
    EXPECT_EQ(strips[1].left, 300);
    EXPECT_EQ(strips[1].right, page.width);
    EXPECT_EQ(strips[1].top, 60);
    EXPECT_EQ(strips[1].bottom, page.rules[0].to);
}

TEST(ColumnStrips, ArePartedByNoOtherRule) {
    struct Row {
        std::function<void(PageText&)> change;
        const char* why;
    };
    const Row rows[] = {
        {[](PageText& page) { page.rules[0].to = 60 + 0.4 * page.height; }, "it is short"},
        {[](PageText& page) { page.rules[0].width = 8; }, "it is a bar"},
        {[](PageText& page) { page.rules[0].isUsed = true; }, "it is something else already"},
        {[](PageText& page) { page.lines.push_back(makeLine("Over-the-rule", 270, 300)); }, "a word reaches over it"},
        {[](PageText& page) { page.rules.push_back(tests::ruleAt(RuleDirection::Horizontal, 90, 50, 500)); },
         "a rule crosses it as in a table"},
        {[](PageText& page) {
             page.grounds.emplace_back().box = {50, 95, 500, 107};
         },
         "a filled row crosses it"},
        {[](PageText& page) {
             page.figures.emplace_back().box = {250, 200, 350, 260};
         },
         "a picture crosses it"},
        {[](PageText& page) {
             for (Line& line : page.lines)
                 line.baseline = 12 * std::floor(line.baseline / 12);
         },
         "the lines stand side by side"},
        {[](PageText& page) { page.lines.resize(10); }, "there are few lines"},
    };
    for (const Row& row : rows) {
        PageText page = pageWithColumns();
        row.change(page);
        EXPECT_TRUE(findColumnStrips(page, {}).empty()) << row.why;
    }
}

TEST(ColumnStrips, LieBetweenRulesThatAreDrawnTwice) {
    PageText page = pageWithColumns();
    page.rules.push_back(page.rules.front());
    EXPECT_EQ(findColumnStrips(page, {}).size(), 2U);
}

TEST(ColumnStrips, AreNoneBetweenTheManyRulesOfADrawing) {
    PageText page = pageWithColumns();
    for (int i = 0; i < 12; ++i)
        page.rules.push_back(upright(400 + 5 * i, 60, 60 + 0.6 * page.height));
    EXPECT_TRUE(findColumnStrips(page, {}).empty());
}

TEST(ColumnStrips, MayHaveAPageWideGroundBehindThem) {
    PageText page = pageWithColumns();
    page.grounds.emplace_back().box = {0, 0, page.width, page.height};
    EXPECT_EQ(findColumnStrips(page, {}).size(), 2U);
}

TEST(ColumnStrips, KnowWhatLeadsOverTheirEdges) {
    const std::vector<ColumnStrip> strips{{0, 300, 60, 500}, {300, 600, 60, 500}};
    EXPECT_FALSE(leadsOver(strips, {50, 100, 280, 200}));
    EXPECT_TRUE(leadsOver(strips, {50, 100, 320, 200}));
    EXPECT_TRUE(leadsOver(strips, {250, 100, 590, 200}));
    EXPECT_FALSE(leadsOver(strips, {50, 10, 590, 50})) << "it stands above them";
}

TEST(ColumnStrips, AreWhereLinesAreCut) {
    const std::vector<ColumnStrip> strips{{0, 300, 60, 500}, {300, 600, 60, 500}};
    std::vector<Line> lines{makeLine("Left right", 270, 100), makeLine("Title above", 270, 40)};
    cutAtStrips(lines, strips);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].words.size(), 1U);
    EXPECT_EQ(lines[1].words.size(), 1U);
    EXPECT_GT(lines[1].box.left, lines[0].box.right);
    EXPECT_EQ(lines[2].words.size(), 2U) << "what stands above the strips";
}

} // namespace
} // namespace orvane::layout
