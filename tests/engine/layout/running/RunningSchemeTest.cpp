#include "layout/running/RunningScheme.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane::layout {
namespace {

/// Pages whose headers show one letter each; '.' has none. In `chances` '|' must start a section, '-' may not.
std::vector<RunningScheme> schemesOf(const std::string& headers, const std::string& chances = "") {
    std::vector<PageRunningHeads> heads(headers.size());
    std::vector<SectionChance> may(headers.size(), SectionChance::May);
    for (std::size_t i = 0; i < headers.size(); ++i) {
        if (headers[i] != '.')
            heads[i].header.emplace().key = headers[i];
        if (i < chances.size() && chances[i] != ' ')
            may[i] = chances[i] == '|' ? SectionChance::Must : SectionChance::None;
    }
    return findSchemes(heads, may);
}

TEST(RunningScheme, KeepsPagesOfOneHeadTogether) {
    const auto schemes = schemesOf("aaaa");
    ASSERT_EQ(schemes.size(), 1u);
    EXPECT_EQ(schemes[0].lastPage, 3u);
    EXPECT_FALSE(schemes[0].even);
    EXPECT_FALSE(schemes[0].hasOwnFirstPage);
}

TEST(RunningScheme, KnowsFirstPagesOfTheirOwn) {
    const auto schemes = schemesOf(".aaa");
    ASSERT_EQ(schemes.size(), 1u);
    EXPECT_TRUE(schemes[0].hasOwnFirstPage);
    EXPECT_EQ(schemes[0].standard, 1u);
}

TEST(RunningScheme, KnowsOddAndEvenPages) {
    const auto schemes = schemesOf("ababab");
    ASSERT_EQ(schemes.size(), 1u);
    EXPECT_EQ(schemes[0].standard, 0u);
    EXPECT_EQ(schemes[0].even, 1u);
    const auto withTitle = schemesOf(".babab");
    ASSERT_EQ(withTitle.size(), 1u);
    EXPECT_TRUE(withTitle[0].hasOwnFirstPage);
    EXPECT_EQ(withTitle[0].even, 1u) << "the second page";
    EXPECT_EQ(withTitle[0].standard, 2u);
}

TEST(RunningScheme, GoesOnWhereADrawingTookTheRuleOfTheHead) {
    std::vector<PageRunningHeads> heads(5);
    for (PageRunningHeads& page : heads) {
        page.header.emplace().key = "Annual report";
        page.header->rules = "_60";
    }
    heads[0].header->rules.clear();
    heads[3].header->rules.clear();
    const auto schemes = findSchemes(heads, std::vector<SectionChance>(5, SectionChance::May));
    ASSERT_EQ(schemes.size(), 1u);
    EXPECT_EQ(schemes[0].standard, 1u) << "shows the rule";
}

TEST(RunningScheme, StartsAnewWhereHeadsOfRulesAloneEnd) {
    std::vector<PageRunningHeads> heads(4);
    for (const std::size_t page : {0, 1})
        heads[page].header.emplace().rules = "_60";
    const auto schemes = findSchemes(heads, std::vector<SectionChance>(4, SectionChance::May));
    EXPECT_EQ(schemes.size(), 2u);
}

TEST(RunningScheme, StartsAnewWhereHeadsChange) {
    const auto schemes = schemesOf("aaabbb");
    ASSERT_EQ(schemes.size(), 2u);
    EXPECT_EQ(schemes[1].firstPage, 3u);
    EXPECT_FALSE(schemes[1].hasOwnFirstPage);
}

TEST(RunningScheme, StartsAnewWhereThePaperChanges) {
    EXPECT_EQ(schemesOf("aaaa", "  | ").size(), 2u);
}

TEST(RunningScheme, KeepsTheHeadWhereNoSectionMayBegin) {
    EXPECT_EQ(schemesOf("aaabbb", "   ---").size(), 1u);
}

TEST(RunningScheme, RepeatsNoHeadOfTheFirstPageOnAPageWithout) {
    const auto schemes = schemesOf("a.", " -");
    ASSERT_EQ(schemes.size(), 1u);
    EXPECT_TRUE(schemes[0].hasOwnFirstPage);
}

TEST(RunningScheme, PassesOverAPageWithoutHeads) {
    EXPECT_EQ(schemesOf("aa.aa").size(), 1u);
}

} // namespace
} // namespace orvane::layout
