#include "layout/running/RepeatedRules.h"

#include "engine/layout/running/RunningPages.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;
using tests::pagesWith;

Rule ruleAt(double y) {
    Rule rule;
    rule.position = y;
    rule.from = 72;
    rule.to = 523;
    return rule;
}

TEST(RepeatedRules, TakesRulesWithoutTextBeyondTheBody) {
    auto pages = pagesWith(5, [](PageText& page, int number) {
        if (number > 1)
            page.rules.push_back(ruleAt(60));
        page.rules.push_back(ruleAt(760));
        page.rules.push_back(ruleAt(205));
    });
    const auto heads = takeRunningHeads(pages, {});
    EXPECT_FALSE(heads[0].header) << "the first page has none";
    for (std::size_t i = 0; i < pages.size(); ++i) {
        ASSERT_TRUE(heads[i].footer);
        EXPECT_EQ(heads[i].footer->content.rules.size(), 1u);
        EXPECT_EQ(heads[i].footer->key, heads[0].footer->key);
        EXPECT_EQ(pages[i].rules.size(), 1u) << "what stands within the text stays";
    }
    ASSERT_TRUE(heads[1].header);
    EXPECT_EQ(heads[1].header->content.rules.front().position, 60);
}

TEST(RepeatedRules, LeavesRulesThatFewPagesHaveOrThatAreOfTheText) {
    const struct {
        const char* why;
        std::function<void(PageText&, int)> addRules;
    } rows[] = {{"two pages of five",
                 [](PageText& page, int number) {
                     if (number > 3)
                         page.rules.push_back(ruleAt(60));
                 }},
                {"a table that goes on",
                 [](PageText& page, int) {
                     page.rules.push_back(ruleAt(60));
                     Rule side = ruleAt(72);
                     side.direction = RuleDirection::Vertical;
                     side.from = 60;
                     side.to = 700;
                     page.rules.push_back(side);
                 }},
                {"text of other pages stands beyond", [](PageText& page, int number) {
                     if (number > 2)
                         page.rules.push_back(ruleAt(60));
                     else
                         page.lines.push_back(makeLine(fmt::format("page {} starts here", char('a' + number)), 72,
                                                       number == 1 ? 50 : 40));
                 }}};
    for (const auto& row : rows) {
        auto pages = pagesWith(5, row.addRules);
        for (const PageRunningHeads& heads : takeRunningHeads(pages, {}))
            EXPECT_FALSE(heads.header || heads.footer) << row.why;
    }
}

/// Four rules around the text of pagesWith().
void addFrame(PageText& page) {
    for (const double y : {30.0, 810.0}) {
        page.rules.push_back(ruleAt(y));
        page.rules.back().from = 30;
        page.rules.back().to = 565;
    }
    for (const double x : {30.0, 565.0}) {
        Rule side = ruleAt(x);
        side.direction = RuleDirection::Vertical;
        side.from = 30;
        side.to = 810;
        page.rules.push_back(side);
    }
}

TEST(RepeatedRules, DrawFramesAroundThePagesWithTheHeader) {
    auto pages = pagesWith(5, [](PageText& page, int) { addFrame(page); });
    const auto heads = takeRunningHeads(pages, {});
    for (std::size_t i = 0; i < pages.size(); ++i) {
        EXPECT_TRUE(pages[i].rules.empty());
        ASSERT_TRUE(heads[i].header);
        EXPECT_EQ(heads[i].header->content.rules.size(), 4u);
    }
}

TEST(RepeatedRules, LeaveTheOutlineOfATableThatFillsThePages) {
    auto pages = pagesWith(5, [](PageText& page, int) {
        addFrame(page);
        page.rules.push_back(ruleAt(205));
        page.rules.back().from = 30;
        page.rules.back().to = 565;
    });
    for (const PageRunningHeads& heads : takeRunningHeads(pages, {}))
        EXPECT_FALSE(heads.header || heads.footer);
    EXPECT_EQ(pages[0].rules.size(), 5u);
}

} // namespace
} // namespace orvane::layout
