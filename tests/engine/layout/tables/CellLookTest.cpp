#include "layout/tables/CellLook.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::ruleAt;

/// One row of two cells of 100 by 50 points, at 0, 0.
TableDraft tableOfTwo() {
    TableDraft table;
    table.box = {0, 0, 200, 50};
    for (const double left : {0.0, 100.0}) {
        CellDraft& cell = table.cells.emplace_back();
        cell.box = {left, 0, left + 100, 50};
    }
    return table;
}

TEST(CellLook, UsesUpTheRulesAlongTheSidesOfCells) {
    struct Row {
        Rule rule;
        bool isUsed;
        const char* why;
    };
    const Row rows[] = {
        {ruleAt(RuleDirection::Horizontal, 0, 0, 200), true, "along the top of both"},
        {ruleAt(RuleDirection::Vertical, 102, 0, 50), true, "beside the side that both share: one of two"},
        {ruleAt(RuleDirection::Horizontal, 25, 10, 90), false, "a line to write on"},
        {ruleAt(RuleDirection::Vertical, 2.5, 15, 40), false, "the side of a field that fills its cell"},
        {ruleAt(RuleDirection::Vertical, 0.5, 15, 40), true, "a piece of the cell's own side"},
        {ruleAt(RuleDirection::Vertical, 50, 20, 30), false, "the side of a box in a cell"},
    };
    for (const Row& row : rows) {
        TableDraft table = tableOfTwo();
        std::vector<Rule> rules{row.rule};
        const std::vector<BorderLine> lines = collectBorderLines(rules, {});
        drawBorders(table, TableEdges::Ruled, rules, lines, {});
        EXPECT_EQ(rules[0].isUsed, row.isUsed) << row.why;
    }
}

TEST(CellLook, DrawsTheBordersThatRulesCover) {
    const auto top = [](const std::vector<Rule>& drawn, TableEdges edges) {
        TableDraft table = tableOfTwo();
        std::vector<Rule> rules = drawn;
        drawBorders(table, edges, rules, collectBorderLines(rules, {}), {});
        return table.cells[0].borders.top.kind != document::BorderKind::None;
    };
    const Rule most = ruleAt(RuleDirection::Horizontal, 0, 0, 75);
    EXPECT_TRUE(top({most}, TableEdges::Ruled));
    EXPECT_FALSE(top({most}, TableEdges::Boxed)) << "the box beside the cell ends there";
    EXPECT_TRUE(top({ruleAt(RuleDirection::Horizontal, 0, 0, 100)}, TableEdges::Boxed));
    const Rule half = ruleAt(RuleDirection::Horizontal, 0, 0, 50);
    EXPECT_FALSE(top({half, half}, TableEdges::Ruled)) << "drawn twice it covers no more";
}

TEST(CellLook, DrawsNoBorderOfRulesThatOnlyEndNearAShortSide) {
    TableDraft table = tableOfTwo();
    for (CellDraft& cell : table.cells)
        cell.box.bottom = 5;
    std::vector<Rule> rules{ruleAt(RuleDirection::Vertical, 0, -40, 0), ruleAt(RuleDirection::Vertical, 0, 5, 45)};
    drawBorders(table, TableEdges::Ruled, rules, collectBorderLines(rules, {}), {});
    EXPECT_EQ(table.cells[0].borders.left.kind, document::BorderKind::None);
}

TEST(CellLook, UsesUpTheGroundsThatCoverCells) {
    struct Row {
        Rect box;
        Color color;
        bool isUsed;
        const char* why;
    };
    const Color grey{200, 200, 200};
    const Row rows[] = {
        {{0, 0, 200, 50}, grey, true, "the row's"},
        {{100, 0, 200, 50}, grey, true, "a cell's"},
        {{110, 20, 160, 35}, grey, false, "a field in a cell"},
        {{110, 20, 160, 35}, kWhite, true, "paper"},
        {{0, 48, 200, 50}, grey, true, "a border drawn as a box"},
    };
    for (const Row& row : rows) {
        TableDraft table = tableOfTwo();
        std::vector<Ground> grounds(1);
        grounds[0].box = row.box;
        grounds[0].color = row.color;
        shadeCells(table, grounds, {});
        EXPECT_EQ(grounds[0].isUsed, row.isUsed) << row.why;
    }
}

} // namespace
} // namespace orvane::layout
