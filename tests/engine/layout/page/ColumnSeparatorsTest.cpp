#include "layout/page/ColumnSeparators.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

Rule upright(double x, double from, double to, double width = 0.5) {
    Rule rule = tests::ruleAt(RuleDirection::Vertical, x, from, to);
    rule.width = width;
    return rule;
}

TEST(ColumnSeparators, StandBetweenAllColumnsOverTheirHeight) {
    struct Row {
        std::vector<Rule> rules;
        bool hasSeparator;
        const char* why;
    };
    const Row rows[] = {
        {{upright(200, 100, 500), upright(400, 100, 500)}, true, "one between each two"},
        {{upright(200, 100, 500)}, false, "word processors draw all or none"},
        {{upright(200, 100, 500), upright(400, 100, 300)}, false, "one ends half-way"},
        {{upright(100, 100, 500), upright(400, 100, 500)}, false, "one stands within a column"},
        {{upright(200, 100, 500, 8), upright(400, 100, 500)}, false, "one is a bar"},
        {{}, false, "there is none"},
    };
    for (const Row& row : rows) {
        std::vector<Band> bands{{100, 500, {{50, 190}, {210, 390}, {410, 550}}, false}};
        std::vector<Rule> rules = row.rules;
        findColumnSeparators(bands, rules, {});
        EXPECT_EQ(bands[0].hasSeparator, row.hasSeparator) << row.why;
        for (const Rule& rule : rules)
            EXPECT_EQ(rule.isUsed, row.hasSeparator) << row.why;
    }
}

TEST(ColumnSeparators, MayReachOverSeveralBands) {
    std::vector<Band> bands{{100, 290, {{50, 290}, {310, 550}}, false}, {310, 500, {{50, 290}, {310, 550}}, false}};
    std::vector<Rule> rules{upright(300, 100, 500)};
    findColumnSeparators(bands, rules, {});
    EXPECT_TRUE(bands[0].hasSeparator);
    EXPECT_TRUE(bands[1].hasSeparator);
    EXPECT_TRUE(rules[0].isUsed);
}

TEST(ColumnSeparators, ThatReachFarBeyondTheColumnsAreDrawn) {
    std::vector<Band> bands{{100, 200, {{50, 290}, {310, 550}}, false}};
    std::vector<Rule> rules{upright(300, 100, 700)};
    findColumnSeparators(bands, rules, {});
    EXPECT_FALSE(rules[0].isUsed);
}

TEST(ColumnSeparators, AreNotSoughtBesideOneColumn) {
    std::vector<Band> bands{{100, 500, {{50, 550}}, false}};
    std::vector<Rule> rules{upright(300, 100, 500)};
    findColumnSeparators(bands, rules, {});
    EXPECT_FALSE(bands[0].hasSeparator);
    EXPECT_FALSE(rules[0].isUsed);
}

} // namespace
} // namespace orvane::layout
