#include "engine/layout/TextBuilder.h"
#include "layout/tables/TableFinder.h"

#include <gtest/gtest.h>

#include <chrono>

namespace orvane::layout::tests {
namespace {

double secondsToFindTables(PageText page) {
    Diagnostics diagnostics;
    const auto start = std::chrono::steady_clock::now();
    findTables(page, {}, LayoutParameters{}, diagnostics);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Rule makeRule(RuleDirection direction, double position, double from, double to) {
    Rule rule;
    rule.direction = direction;
    rule.position = position;
    rule.from = from;
    rule.to = to;
    return rule;
}

// A plan or a map: twenty thousand lines of which many cross.
TEST(TableFinder, TakesLittleTimeForAPageFullOfLines) {
    PageText page = makePage(1);
    for (int i = 0; i < 10000; ++i) {
        const double across = (i * 37) % 5000 * 0.1;
        const double along = (i * 53) % 400;
        page.rules.push_back(makeRule(RuleDirection::Horizontal, 50 + across, along, along + 100));
        page.rules.push_back(makeRule(RuleDirection::Vertical, 50 + across, along, along + 100));
    }
    for (int i = 0; i < 500; ++i)
        page.lines.push_back(makeLine("street name", i % 5 * 100, 50 + i, {}));
    EXPECT_LT(secondsToFindTables(page), 2.0);
}

// A price list: a thousand cells, each with four sides of its own and a word.
TEST(TableFinder, TakesLittleTimeForAPageThatIsOneTable) {
    PageText page = makePage(1);
    for (int row = 0; row < 70; ++row) {
        for (int column = 0; column < 20; ++column) {
            const double x = 20 + 27 * column;
            const double y = 20 + 11 * row;
            for (const double edge : {y, y + 11})
                page.rules.push_back(makeRule(RuleDirection::Horizontal, edge, x, x + 27));
            for (const double edge : {x, x + 27})
                page.rules.push_back(makeRule(RuleDirection::Vertical, edge, y, y + 11));
            page.lines.push_back(makeLine("1.23", x + 2, y + 8, {.size = 8}));
        }
    }
    EXPECT_LT(secondsToFindTables(page), 2.0);
}

} // namespace
} // namespace orvane::layout::tests
