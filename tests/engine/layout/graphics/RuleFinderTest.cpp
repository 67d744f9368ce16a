#include "layout/graphics/RuleFinder.h"

#include "engine/layout/PageContentBuilder.h"

#include <gmock/gmock.h>

#include <chrono>

namespace orvane::layout {
namespace {

using document::BorderKind;
using pdf::tests::PageContentBuilder;

RuledPage rulesOf(const PageContentBuilder& page) {
    Diagnostics diagnostics;
    return findRules(page.content(), {}, diagnostics);
}

TEST(RuleFinder, ReadsStrokesAndThinRectanglesAlike) {
    PageContentBuilder page;
    page.horizontalRule(72, 300, 100, 1);
    page.filledRectangle({72, 199.5, 300, 200.5}, kBlack);
    page.filledRectangle({400, 100, 400.48, 300}, kBlack);
    const std::vector<Rule> rules = rulesOf(page).rules;
    ASSERT_EQ(rules.size(), 3u);
    for (const std::size_t i : {0u, 1u}) {
        EXPECT_EQ(rules[i].direction, RuleDirection::Horizontal);
        EXPECT_NEAR(rules[i].position, 100 + 100.0 * static_cast<double>(i), 0.01);
        EXPECT_EQ(rules[i].from, 72);
        EXPECT_EQ(rules[i].to, 300);
        EXPECT_NEAR(rules[i].width, 1, 0.01);
    }
    EXPECT_EQ(rules[2].direction, RuleDirection::Vertical);
    EXPECT_NEAR(rules[2].position, 400.24, 0.01);
}

TEST(RuleFinder, TellsHowRulesArePainted) {
    PageContentBuilder page;
    page.horizontalRule(72, 300, 100);
    page.filledRectangle({72, 200, 300, 200.5}, kBlack);
    pdf::PageContent content = page.content();
    pdf::Path both = content.paths[1];
    for (pdf::PathSegment segment : content.paths[1].segments) {
        segment.to.y += 100;
        both.segments.push_back(segment);
    }
    both.box.bottom += 100;
    content.paths[1] = both;
    Diagnostics diagnostics;
    const std::vector<Rule> rules = findRules(content, {}, diagnostics).rules;
    ASSERT_EQ(rules.size(), 3u);
    EXPECT_EQ(rules[0].paint, RulePaint::Stroked);
    EXPECT_EQ(rules[1].paint, RulePaint::Filled) << "one of two boxes of one path";
    PageContentBuilder single;
    single.filledRectangle({72, 200, 300, 200.5}, kBlack);
    EXPECT_EQ(rulesOf(single).rules.at(0).paint, RulePaint::Stroked) << "viewers widen a box alone to a whole pixel";
}

TEST(RuleFinder, MakesFourRulesOfAStrokedRectangle) {
    PageContentBuilder page;
    page.strokedRectangle({72, 100, 200, 160});
    const RuledPage result = rulesOf(page);
    EXPECT_EQ(result.rules.size(), 4u);
    EXPECT_TRUE(result.grounds.empty());
}

TEST(RuleFinder, TakesASlopeInVeryShortLinesForNoRules) {
    PageContentBuilder page;
    pdf::Path& path = page.newPath();
    path.segments.push_back({pdf::PathVerb::Move, {}, {}, {100, 100}});
    for (int i = 1; i <= 200; ++i)
        path.segments.push_back({pdf::PathVerb::Line, {}, {}, {100 + 0.5 * i, 100 + 0.25 * i}});
    path.box = {100, 100, 200, 150};
    path.stroke = pdf::StrokeStyle{kBlack, 1, {}, 1};
    const RuledPage result = rulesOf(page);
    EXPECT_TRUE(result.rules.empty());
    EXPECT_FALSE(result.isTaken[0]);
}

TEST(RuleFinder, PaintsAJoinedRuleWithTheLastOfItsPieces) {
    PageContentBuilder page;
    page.horizontalRule(72, 200, 100);
    page.filledRectangle({72, 80, 300, 120}, {200, 200, 200});
    page.horizontalRule(200, 300, 100);
    const RuledPage result = rulesOf(page);
    ASSERT_EQ(result.rules.size(), 1u);
    EXPECT_GT(result.rules[0].paintOrder, result.grounds.at(0).paintOrder);
}

TEST(RuleFinder, LeavesABroadDashedLineToTheDrawings) {
    PageContentBuilder page;
    page.line({72, 100}, {300, 100}, 4, kBlack, {16, 12});
    page.line({72, 200}, {300, 200}, 8);
    const RuledPage result = rulesOf(page);
    EXPECT_FALSE(result.isTaken[0]);
    EXPECT_TRUE(result.isTaken[1]);
    EXPECT_EQ(result.grounds.size(), 1u);
}

TEST(RuleFinder, JoinsPiecesOfOneLine) {
    PageContentBuilder page;
    page.horizontalRule(200, 300, 100.1);
    page.horizontalRule(72, 200.4, 100);
    page.horizontalRule(310, 400, 100.2);
    const std::vector<Rule> rules = rulesOf(page).rules;
    ASSERT_EQ(rules.size(), 2u);
    EXPECT_EQ(rules[0].from, 72);
    EXPECT_EQ(rules[0].to, 300);
    EXPECT_EQ(rules[1].from, 310) << "across a gap of ten points it is another line";
}

TEST(RuleFinder, TellsDashesAndDots) {
    PageContentBuilder page;
    page.line({72, 100}, {300, 100}, 1, kBlack, {3, 2});
    page.line({72, 120}, {300, 120}, 1, kBlack, {1, 1});
    for (int i = 0; i < 20; ++i)
        page.filledRectangle({72.0 + i * 8, 140, 76.0 + i * 8, 141}, kBlack);
    const std::vector<Rule> rules = rulesOf(page).rules;
    ASSERT_EQ(rules.size(), 3u);
    EXPECT_EQ(rules[0].kind, BorderKind::Dashed);
    EXPECT_EQ(rules[1].kind, BorderKind::Dotted);
    EXPECT_EQ(rules[2].kind, BorderKind::Dashed) << "drawn piece by piece";
    EXPECT_EQ(rules[2].to, 228);
}

TEST(RuleFinder, TakesAClosePairAsADoubleRule) {
    PageContentBuilder page;
    page.horizontalRule(72, 300, 100, 0.5);
    page.horizontalRule(72, 300, 101.5, 0.5);
    page.horizontalRule(72, 300, 120, 0.5);
    const std::vector<Rule> rules = rulesOf(page).rules;
    ASSERT_EQ(rules.size(), 2u);
    EXPECT_EQ(rules[0].kind, BorderKind::Double);
    EXPECT_NEAR(rules[0].position, 100.75, 0.01);
    EXPECT_NEAR(rules[0].width, 2, 0.01);
    EXPECT_NEAR(rules[0].lineWidth, 0.5, 0.01);
    EXPECT_EQ(rules[1].kind, BorderKind::Single);
}

TEST(RuleFinder, TakesABroadPairInPiecesAsADoubleRule) {
    // The frame of a table whose double borders are 2.25 points broad: the inner line ends at each that parts columns.
    PageContentBuilder page;
    page.horizontalRule(60, 540, 36.5, 2.25);
    page.horizontalRule(64.5, 206, 41, 2.25);
    page.horizontalRule(208, 535.5, 41, 2.25);
    const std::vector<Rule> rules = rulesOf(page).rules;
    ASSERT_EQ(rules.size(), 1u);
    EXPECT_EQ(rules[0].kind, BorderKind::Double);
    EXPECT_NEAR(rules[0].position, 38.75, 0.01);
    EXPECT_NEAR(rules[0].width, 6.75, 0.01);
    EXPECT_NEAR(rules[0].lineWidth, 2.25, 0.01);
    EXPECT_EQ(rules[0].from, 60);
    EXPECT_EQ(rules[0].to, 540);
}

TEST(RuleFinder, LeavesBroadLinesThatAreNoPair) {
    PageContentBuilder stripes;
    for (const double y : {36.5, 41.0, 45.5})
        stripes.horizontalRule(60, 540, y, 2.25);
    PageContentBuilder half;
    half.horizontalRule(60, 540, 36.5, 2.25);
    half.horizontalRule(60, 300, 41, 2.25);
    PageContentBuilder apart;
    apart.horizontalRule(60, 540, 36.5, 2.25);
    apart.horizontalRule(60, 540, 48.5, 2.25);
    EXPECT_EQ(rulesOf(stripes).rules.size(), 3u);
    EXPECT_EQ(rulesOf(half).rules.size(), 2u);
    EXPECT_EQ(rulesOf(apart).rules.size(), 2u);
}

TEST(RuleFinder, TakesFilledRectanglesAsGrounds) {
    PageContentBuilder page;
    page.filledRectangle({72, 100, 300, 130}, {200, 220, 240});
    page.filledRectangle({80, 105, 120, 125}, kWhite);
    page.filledRectangle({400, 100, 500, 130}, kWhite);
    const std::vector<Ground> grounds = rulesOf(page).grounds;
    ASSERT_EQ(grounds.size(), 2u) << "white on the bare page is nothing";
    EXPECT_EQ(grounds[0].color, (Color{200, 220, 240}));
    EXPECT_EQ(grounds[1].box, (Rect{80, 105, 120, 125})) << "white on a ground is seen";
}

TEST(RuleFinder, TakesLongBarsForBroadRules) {
    PageContentBuilder page;
    page.filledRectangle({72, 100, 300, 104.5}, kBlack); // a broad border
    page.filledRectangle({72, 200, 120, 204.5}, kBlack); // a mark
    page.filledRectangle({72, 300, 300, 307}, kBlack);   // too broad
    const RuledPage ruled = rulesOf(page);
    ASSERT_EQ(ruled.rules.size(), 1u);
    EXPECT_NEAR(ruled.rules[0].width, 4.5, 0.01);
    EXPECT_EQ(ruled.grounds.size(), 2u);
}

TEST(RuleFinder, TakesTheShortSidesOfABroadGridForRules) {
    PageContentBuilder page;
    for (const double y : {100.0, 120.0, 140.0})
        page.horizontalRule(75, 297, y, 6);
    for (const double x : {72.0, 186.0, 300.0})
        page.verticalRule(x, 103, 137, 6);
    const RuledPage ruled = rulesOf(page);
    ASSERT_EQ(ruled.rules.size(), 6u);
    EXPECT_TRUE(ruled.grounds.empty());
    for (const Rule& rule : ruled.rules) {
        const bool isLevel = rule.direction == RuleDirection::Horizontal;
        EXPECT_NEAR(rule.from, isLevel ? 72 : 100, 0.01) << "at the middle of the side that it meets";
        EXPECT_NEAR(rule.to, isLevel ? 300 : 140, 0.01);
        EXPECT_NEAR(rule.width, 6, 0.01);
    }
}

TEST(RuleFinder, TakesTheSidesOfASmallBroadBoxForRules) {
    PageContentBuilder page;
    page.filledRectangle({72, 100, 112, 105}, kBlack);
    page.filledRectangle({72, 120, 112, 125}, kBlack);
    page.filledRectangle({72, 105, 77, 120}, kBlack);
    page.filledRectangle({107, 105, 112, 120}, kBlack);
    const RuledPage ruled = rulesOf(page);
    EXPECT_EQ(ruled.rules.size(), 4u);
    EXPECT_TRUE(ruled.grounds.empty());
}

TEST(RuleFinder, LeavesBarsThatLeadToNoBroadRuleAsGrounds) {
    PageContentBuilder page;
    page.horizontalRule(72, 300, 200, 0.5);
    page.horizontalRule(72, 300, 150, 0.5);
    page.filledRectangle({80, 150, 85, 200}, kBlack); // a bar as high as the scale, between thin rules
    page.horizontalRule(72, 300, 400, 5);
    page.filledRectangle({80, 350, 85, 400}, kBlack);            // one end is free
    page.filledRectangle({90, 370, 95, 397.5}, {200, 220, 240}); // another colour
    const RuledPage ruled = rulesOf(page);
    EXPECT_EQ(ruled.rules.size(), 3u);
    EXPECT_EQ(ruled.grounds.size(), 3u);
}

TEST(RuleFinder, TakesRoundedRectanglesAsRectangles) {
    PageContentBuilder page;
    pdf::Path& path = page.newPath();
    using pdf::PathVerb;
    path.segments = {{PathVerb::Move, {}, {}, {80, 100}},
                     {PathVerb::Line, {}, {}, {192, 100}},
                     {PathVerb::Curve, {196, 100}, {200, 104}, {200, 108}},
                     {PathVerb::Line, {}, {}, {200, 152}},
                     {PathVerb::Curve, {200, 156}, {196, 160}, {192, 160}},
                     {PathVerb::Line, {}, {}, {80, 160}},
                     {PathVerb::Curve, {76, 160}, {72, 156}, {72, 152}},
                     {PathVerb::Line, {}, {}, {72, 108}},
                     {PathVerb::Curve, {72, 104}, {76, 100}, {80, 100}},
                     {PathVerb::Close, {}, {}, {}}};
    path.fill = pdf::FillStyle{{200, 200, 200}, false, false, 1, nullptr};
    path.box = {72, 100, 200, 160};
    const RuledPage result = rulesOf(page);
    ASSERT_EQ(result.grounds.size(), 1u);
    EXPECT_EQ(result.grounds[0].box, path.box);
    EXPECT_TRUE(result.isTaken[0]);
}

/// What is found of a filled outline of straight lines.
RuledPage rulesOfOutline(const std::vector<Point>& corners) {
    PageContentBuilder page;
    pdf::Path& path = page.newPath();
    for (const Point corner : corners) {
        path.segments.push_back({path.segments.empty() ? pdf::PathVerb::Move : pdf::PathVerb::Line, {}, {}, corner});
        path.box = path.box.united({corner.x, corner.y, corner.x + 1, corner.y + 1});
    }
    path.segments.push_back({pdf::PathVerb::Close, {}, {}, {}});
    path.fill = pdf::FillStyle{kBlack, false, false, 1, nullptr};
    return rulesOf(page);
}

TEST(RuleFinder, TakesBarsWhateverTheirOutlineBeginsAndEndsWith) {
    const std::vector<Point> outlines[] = {
        {{72, 101}, {72, 102}, {300, 102}, {300, 101}, {300, 100}, {72, 100}},        // begun in the middle of a side
        {{72, 101}, {72.25, 102}, {299.75, 102}, {300, 101}, {300, 100}, {72, 100}}}; // with mitred ends
    for (const std::vector<Point>& outline : outlines) {
        const RuledPage result = rulesOfOutline(outline);
        ASSERT_EQ(result.rules.size(), 1u);
        EXPECT_EQ(result.rules[0].from, 72);
        EXPECT_EQ(result.rules[0].to, 300);
        EXPECT_NEAR(result.rules[0].width, 2, 0.01);
    }
}

TEST(RuleFinder, LeavesStepsToTheDrawings) {
    for (const double height : {2.0, 60.0}) {
        const double middle = 100 + height / 2, bottom = 100 + height;
        const RuledPage result =
            rulesOfOutline({{72, 100}, {150, 100}, {150, middle}, {300, middle}, {300, bottom}, {72, bottom}});
        EXPECT_TRUE(result.rules.empty());
        EXPECT_TRUE(result.grounds.empty());
        EXPECT_FALSE(result.isTaken[0]) << height;
    }
}

TEST(RuleFinder, LeavesShapesToTheDrawings) {
    PageContentBuilder page;
    page.disk({100, 100}, 20);
    page.line({72, 200}, {150, 260});
    const RuledPage result = rulesOf(page);
    EXPECT_TRUE(result.rules.empty());
    EXPECT_TRUE(result.grounds.empty());
    EXPECT_THAT(result.isTaken, testing::ElementsAre(false, false));
}

TEST(RuleFinder, IsQuickOnAPageOfManySegments) {
    PageContentBuilder page;
    for (int row = 0; row < 200; ++row)
        for (int column = 0; column < 50; ++column) {
            page.horizontalRule(10 + column * 11, 20 + column * 11, 10 + row * 4);
            page.verticalRule(10 + column * 11, 10 + row * 4, 13 + row * 4);
        }
    const auto begin = std::chrono::steady_clock::now();
    const std::size_t count = rulesOf(page).rules.size();
    EXPECT_EQ(count, 250u) << "200 lines across, 50 dashed ones down";
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5)) << "20,000 segments";
}

} // namespace
} // namespace orvane::layout
