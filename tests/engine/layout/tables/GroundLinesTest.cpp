#include "layout/tables/GroundLines.h"

#include "engine/layout/TextBuilder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvane::layout {
namespace {

/// Rows of two cells with much room around their texts, every other one filled: these are 54 points high, the others
/// 44. Above the first stands the head, below the last lines that are no part of the table.
PageText stripes(int filled) {
    PageText page;
    double top = 76;
    const auto addRow = [&](double height) {
        for (const double x : {60.0, 180.0})
            page.lines.push_back(tests::makeLine("some text", x, top + height / 2 + 3));
        top += height;
    };
    for (int i = 0; i < filled; ++i) {
        for (const auto& [left, right] : {std::pair{50.0, 170.0}, std::pair{170.0, 350.0}})
            page.grounds.push_back({{left, top, right, top + 54}, {0xDD, 0xDD, 0xDD}, 1, false, 0, {}});
        addRow(54);
        addRow(44);
    }
    for (const double x : {60.0, 180.0}) {
        page.lines.push_back(tests::makeLine("head", x, 72));
        for (int i = 0; i < 4; ++i)
            page.lines.push_back(tests::makeLine("other", x, top + 12 + 20 * i));
    }
    return page;
}

BorderLine ruleAt(double y) {
    return undrawnLine(RuleDirection::Horizontal, y, 50, 350);
}

/// From where to where the lines between the columns go; empty without any.
std::string columnOf(const std::vector<BorderLine>& lines) {
    double from = 1000, to = 0;
    for (const BorderLine& line : lines) {
        if (line.direction == RuleDirection::Horizontal || line.position != 170)
            continue;
        from = std::min(from, line.from);
        to = std::max(to, line.to);
    }
    return from < to ? std::to_string(std::lround(from)) + " to " + std::to_string(std::lround(to)) : "";
}

TEST(GroundLines, TwoFilledRowsBetweenRulesAreOfATable) {
    const PageText page = stripes(2);
    EXPECT_EQ(columnOf(linesOfGrounds(page, {ruleAt(60), ruleAt(76), ruleAt(272)}, {})), "60 to 272");
    EXPECT_EQ(columnOf(linesOfGrounds(page, {}, {})), "") << "two alone may be anything";
    EXPECT_EQ(columnOf(linesOfGrounds(page, {ruleAt(60)}, {})), "") << "a rule above them alone";
}

TEST(GroundLines, RowsBetweenLeaveAsMuchRoomAsFilledOnes) {
    EXPECT_EQ(columnOf(linesOfGrounds(stripes(3), {ruleAt(60), ruleAt(370)}, {})), "60 to 370");
    PageText distant = stripes(3);
    std::erase_if(distant.lines, [](const Line& line) { return line.baseline > 130 && line.baseline < 174; });
    EXPECT_EQ(columnOf(linesOfGrounds(distant, {}, {})), "") << "nothing stands between the first two";
}

} // namespace
} // namespace orvane::layout
