#include "layout/graphics/GroundOutlines.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::ruleAt;

constexpr Color kGrey{230, 230, 230};

/// A ground from (50, 60) to (250, 75) with rules of a colour along its four sides.
std::vector<Rule> outlined(Color color) {
    std::vector<Rule> rules{
        ruleAt(RuleDirection::Horizontal, 60, 50, 250.4), ruleAt(RuleDirection::Horizontal, 75, 50, 250.4),
        ruleAt(RuleDirection::Vertical, 50, 60, 75), ruleAt(RuleDirection::Vertical, 250.4, 60, 75)};
    for (Rule& rule : rules)
        rule.color = color;
    return rules;
}

std::size_t countLeft(std::vector<Rule> rules) {
    Ground ground;
    ground.box = {50, 60, 250, 75};
    ground.color = kGrey;
    dropGroundOutlines(rules, {ground}, {});
    return rules.size();
}

TEST(GroundOutlines, DropsWhatNobodySees) {
    EXPECT_EQ(countLeft(outlined(kGrey)), 0U);
    EXPECT_EQ(countLeft(outlined(kBlack)), 4U) << "a box that is seen";
    std::vector<Rule> open = outlined(kGrey);
    open.pop_back();
    EXPECT_EQ(countLeft(open), 3U) << "no outline";
}

TEST(GroundOutlines, KeepsWhatIsPartOfAGrid) {
    std::vector<Rule> rules = outlined(kGrey);
    rules.push_back(ruleAt(RuleDirection::Vertical, 150, 75, 200));
    EXPECT_EQ(countLeft(rules), 5U) << "a column goes on below the filled head";
}

} // namespace
} // namespace orvane::layout
