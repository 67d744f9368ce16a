#include "layout/page/PageMap.h"

#include "layout/page/FacingPages.h"
#include "layout/page/TurnedPages.h"
#include "layout/text/LineText.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <cmath>

namespace orvane::layout {
namespace {

using tests::makeLine;
using tests::makePage;

/// A page of lines, laid on its side so that its text runs down or up.
PageText pageOnItsSide(double angle) {
    PageText page = makePage(1);
    for (int i = 0; i < 6; ++i)
        page.lines.push_back(makeLine("the words of a line in the table", 72, 100 + 20 * i));
    page.rules.push_back(tests::ruleAt(RuleDirection::Horizontal, 90, 72, 300));
    Figure picture;
    picture.box = {72, 300, 172, 350};
    picture.matrix = {100, 0, 0, 50, 72, 300};
    page.figures.push_back(picture);
    // What is turned is a page that is wider than high.
    std::swap(page.width, page.height);
    mapPage(page, angle == 90 ? Matrix{0, 1, -1, 0, page.height, 0} : Matrix{0, -1, 1, 0, 0, page.width});
    std::swap(page.width, page.height);
    return page;
}

TEST(PageMap, ShiftsAllThatStandsOnAPage) {
    PageText page = makePage(1);
    page.lines.push_back(makeLine("text", 72, 100));
    page.rules.push_back(tests::ruleAt(RuleDirection::Vertical, 60, 80, 300));
    page.fields.emplace_back().box = {100, 100, 120, 110};
    mapPage(page, {1, 0, 0, 1, 10, 0});
    EXPECT_EQ(page.lines[0].box.left, 82);
    EXPECT_EQ(page.lines[0].words[0].spans[0].box.left, 82);
    EXPECT_EQ(page.lines[0].baseline, 100);
    EXPECT_EQ(page.rules[0].position, 70);
    EXPECT_EQ(page.rules[0].from, 80);
    EXPECT_EQ(page.fields[0].box.left, 110);
}

TEST(TurnedPages, AreTurnedUpright) {
    for (const double angle : {90.0, 270.0}) {
        PageText page = pageOnItsSide(angle);
        ASSERT_EQ(page.lines[0].angle, angle);
        ASSERT_LT(page.width, page.height);
        turnUpright(page, {});
        EXPECT_GT(page.width, page.height);
        ASSERT_EQ(page.lines.size(), 6u);
        EXPECT_EQ(page.lines[0].angle, 0);
        EXPECT_NEAR(page.lines[0].box.left, 72, 0.01);
        EXPECT_NEAR(page.lines[1].baseline, 120, 0.01) << "from the top down";
        EXPECT_EQ(page.rules[0].direction, RuleDirection::Horizontal);
        EXPECT_NEAR(page.rules[0].position, 90, 0.01);
        EXPECT_NEAR(page.figures[0].box.left, 72, 0.01);
        EXPECT_NEAR(page.figures[0].matrix.a, 100, 0.01) << "the picture is as it was before";
        EXPECT_NEAR(page.figures[0].matrix.b, 0, 0.01);
    }
}

TEST(TurnedPages, StayWhereTheirTextIsLevel) {
    PageText page = pageOnItsSide(90);
    for (int i = 0; i < 3; ++i)
        page.lines.push_back(makeLine("but as many words run level as any page has", 72, 500 + 20 * i));
    turnUpright(page, {});
    EXPECT_EQ(page.lines[0].angle, 90);
    EXPECT_LT(page.width, page.height);
}

TEST(TurnedPages, AreTurnedThoughTheirHeadAndFootAreLevel) {
    PageText page = pageOnItsSide(90);
    Rect turned;
    for (const Line& line : page.lines)
        turned = turned.united(line.box);
    page.lines.push_back(makeLine("a head that is level on every page of the thesis", 72, turned.top - 20));
    page.lines.push_back(makeLine("19", 290, turned.bottom + 30));
    turnUpright(page, {});
    EXPECT_GT(page.width, page.height);
    EXPECT_EQ(std::count_if(page.lines.begin(), page.lines.end(), [](const Line& line) { return line.angle == 0; }), 6);
}

/// A page of full lines between these edges.
PageText pageBetween(int number, double left, double right) {
    PageText page = makePage(number);
    for (int i = 0; i < 20; ++i) {
        Line line = makeLine("words", left, 100 + 12 * i);
        line.box.right = right;
        page.lines.push_back(std::move(line));
    }
    return page;
}

TEST(FacingPages, AreAlignedWhereTheirMarginsAreMirrored) {
    std::vector<PageText> pages;
    for (int i = 0; i < 8; ++i)
        pages.push_back(i % 2 == 0 ? pageBetween(i + 1, 100, 445) : pageBetween(i + 1, 150, 495));
    EXPECT_TRUE(alignFacingPages(pages, {}));
    for (const PageText& page : pages)
        EXPECT_NEAR(page.lines[0].box.left, 100, 0.01);
}

TEST(FacingPages, StayWhereTheyAreNotMirrored) {
    const struct {
        double left, right;
        const char* why;
    } rows[] = {{100, 445, "the same margins on both"},
                {120, 465, "shifted, but not to where the other margin is"},
                {150, 470, "narrower"}};
    for (const auto& row : rows) {
        std::vector<PageText> pages;
        for (int i = 0; i < 8; ++i)
            pages.push_back(i % 2 == 0 ? pageBetween(i + 1, 100, 445) : pageBetween(i + 1, row.left, row.right));
        EXPECT_FALSE(alignFacingPages(pages, {})) << row.why;
        EXPECT_EQ(pages[1].lines[0].box.left, row.left) << row.why;
    }
}

} // namespace
} // namespace orvane::layout
