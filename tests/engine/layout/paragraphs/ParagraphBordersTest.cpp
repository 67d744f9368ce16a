#include "layout/paragraphs/ParagraphBorders.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::BorderKind;
using tests::pageWith;

Rule horizontal(double y, double from = 72, double to = 523) {
    return tests::ruleAt(RuleDirection::Horizontal, y, from, to);
}

Rule vertical(double x, double from, double to) {
    return tests::ruleAt(RuleDirection::Vertical, x, from, to);
}

const ParagraphDraft& at(const PageLayout& page, std::size_t index) {
    return std::get<ParagraphDraft>(page.blocks[index].value);
}

/// The sides that are drawn: "tblr".
std::string sides(const PageLayout& page, std::size_t index) {
    const document::Borders& borders = at(page, index).borders;
    std::string text;
    text += borders.top.kind == BorderKind::None ? "" : "t";
    text += borders.bottom.kind == BorderKind::None ? "" : "b";
    text += borders.left.kind == BorderKind::None ? "" : "l";
    text += borders.right.kind == BorderKind::None ? "" : "r";
    return text;
}

PageLayout found(PageLayout page) {
    findParagraphBorders(page, {});
    return page;
}

TEST(ParagraphBorders, GivesADoubleBorderTheWidthOfOneLine) {
    PageLayout page = pageWith({100});
    page.freeRules = {horizontal(110)};
    page.freeRules[0].kind = BorderKind::Double;
    page.freeRules[0].width = 4.5;
    page = found(std::move(page));
    EXPECT_EQ(at(page, 0).borders.bottom.kind, BorderKind::Double);
    EXPECT_EQ(at(page, 0).borders.bottom.width, eighthPointsFromPoints(1.5));
}

TEST(ParagraphBorders, ARuleBelongsToTheNearerParagraph) {
    PageLayout page = pageWith({100, 150});
    page.freeRules = {horizontal(110)};
    page = found(std::move(page));
    EXPECT_EQ(sides(page, 0), "b");
    EXPECT_EQ(sides(page, 1), "");
    EXPECT_EQ(at(page, 0).borders.bottom.spacePoints, 8) << "from the letters' feet at 102 to the rule's upper edge";
    page = pageWith({100, 150});
    page.freeRules = {horizontal(135)};
    page = found(std::move(page));
    EXPECT_EQ(sides(page, 0) + "|" + sides(page, 1), "|t");
}

TEST(ParagraphBorders, ARuleOfAnotherLengthOrFarAwayIsNone) {
    PageLayout page = pageWith({100});
    page.freeRules = {horizontal(110, 72, 300), horizontal(160)};
    EXPECT_EQ(sides(found(std::move(page)), 0), "");
}

TEST(ParagraphBorders, CentredLinesHaveTheEdgesOfTheirColumn) {
    PageLayout page = pageWith({100});
    auto& paragraph = std::get<ParagraphDraft>(page.blocks[0].value);
    paragraph.alignment = document::Alignment::Center;
    paragraph.indentStart = 180;
    page.freeRules = {horizontal(110)};
    EXPECT_EQ(sides(found(std::move(page)), 0), "b");
}

TEST(ParagraphBorders, AFrameAroundThePageIsNoBorderOfTheParagraphsBesideATable) {
    const auto sidesBeside = [](double tableBottom, double ruleBottom) {
        PageLayout page = pageWith({100, 300});
        page.blocks.emplace_back().value.emplace<TableDraft>().box = {100, 150, 400, tableBottom};
        page.freeRules = {vertical(70, 80, ruleBottom)};
        page = found(std::move(page));
        return sides(page, 0) + "|" + sides(page, 1);
    };
    EXPECT_EQ(sidesBeside(250, 780), "|");
    EXPECT_EQ(sidesBeside(790, 780), "l|l") << "the table goes on below the rule";
    EXPECT_EQ(sidesBeside(250, 320), "l|l") << "a box around some of the page";
}

TEST(ParagraphBorders, WhatABoxHoldsHasAllItsSides) {
    PageLayout page = pageWith({100, 120, 140, 200});
    page.freeRules = {horizontal(85, 68, 527), horizontal(150, 68, 527), vertical(68, 85, 150), vertical(527, 85, 150)};
    page = found(std::move(page));
    for (const std::size_t index : {0U, 1U, 2U})
        EXPECT_EQ(sides(page, index), "tblr") << index;
    EXPECT_EQ(at(page, 0).borders, at(page, 2).borders);
    EXPECT_EQ(sides(page, 3), "");
}

TEST(ParagraphBorders, BoxesOneBelowTheOtherStayApart) {
    PageLayout page = pageWith({100, 120, 200, 300, 400});
    for (const auto& [top, bottom] : {std::pair(85, 130), std::pair(185, 210), std::pair(285, 310)}) {
        page.freeRules.push_back(horizontal(top, 68, 527));
        page.freeRules.push_back(horizontal(bottom, 68, 527));
        page.freeRules.push_back(vertical(68, top, bottom));
        page.freeRules.push_back(vertical(527, top, bottom));
    }
    page = found(std::move(page));
    std::string apart;
    for (std::size_t i = 0; i < 5; ++i)
        apart += at(page, i).isBoxApart ? "x" : "-";
    EXPECT_EQ(apart, "--x--") << "what one box holds stays one";
}

TEST(ParagraphBorders, ARuleBetweenColumnsBelongsToNone) {
    PageLayout page = pageWith({100});
    page.bands[0].columns = {{72, 280}, {300, 523}};
    page.freeRules = {vertical(290, 80, 300)};
    EXPECT_EQ(sides(found(std::move(page)), 0), "");
}

TEST(ParagraphBorders, AGroundIsShading) {
    PageLayout page = pageWith({100, 200});
    const Color grey(0xEE, 0xEE, 0xEE), blue(0, 0, 0xFF);
    page.freeGrounds = {{{0, 0, 595, 842}, blue, 1, false, 0, {}}, {{60, 88, 530, 108}, grey, 1, false, 0, {}}};
    page = found(std::move(page));
    EXPECT_EQ(at(page, 0).shading, grey);
    EXPECT_EQ(at(page, 1).shading, std::nullopt) << "the ground of the whole page is not the paragraph's";
    EXPECT_FALSE(page.freeGrounds[0].isUsed);
    EXPECT_TRUE(page.freeGrounds[1].isUsed);
}

TEST(ParagraphBorders, AGroundMuchHigherThanItsTextIsNoShading) {
    PageLayout page = pageWith({100});
    page.freeGrounds = {{{60, 60, 530, 140}, {0xEE, 0xEE, 0xEE}, 1, false, 0, {}}};
    page = found(std::move(page));
    EXPECT_EQ(at(page, 0).shading, std::nullopt);
    EXPECT_FALSE(page.freeGrounds[0].isUsed);
}

TEST(ParagraphBorders, AGroundThatEndsBeforeTheColumnEndsTheShadingThere) {
    PageLayout page = pageWith({100});
    auto& paragraph = std::get<ParagraphDraft>(page.blocks[0].value);
    paragraph.box.right = 200;
    page.freeGrounds = {{{70, 88, 300, 108}, {0xEE, 0xEE, 0xEE}, 1, false, 0, {}}};
    page = found(std::move(page));
    EXPECT_TRUE(page.freeGrounds[0].isUsed);
    EXPECT_TRUE(at(page, 0).shading);
    ASSERT_TRUE(at(page, 0).shadedSpan);
    EXPECT_NEAR(at(page, 0).shadedSpan->right, 300, 0.01);
}

TEST(ParagraphBorders, ABannerGoesAsFarAsItsGround) {
    const Color navy(0, 0, 0x80);
    const auto banner = [&](std::vector<Ground> grounds) {
        PageLayout page = pageWith({100});
        page.freeGrounds = std::move(grounds);
        return found(std::move(page));
    };
    const Ground ground{{20, 84, 560, 112}, navy, 1, false, 0, {}};
    const PageLayout page = banner({ground});
    ASSERT_TRUE(at(page, 0).shadedSpan);
    EXPECT_NEAR(at(page, 0).shadedSpan->left, 20, 0.01);
    EXPECT_NEAR(at(page, 0).shadedSpan->right, 560, 0.01);
    EXPECT_EQ(sides(page, 0), "tb") << "shading is painted up to borders";
    EXPECT_EQ(at(page, 0).borders.top.color, navy);
    EXPECT_EQ(at(page, 0).borders.bottom.spacePoints, 10) << "from the letters' feet at 102";
    EXPECT_EQ(sides(banner({ground, {{20, 112, 560, 130}, navy, 1, false, 0, {}}}), 0), "") << "one of two in a row";
}

TEST(ParagraphBorders, AGroundThatIsPaintedTwiceIsOne) {
    PageLayout page = pageWith({100});
    page.freeGrounds.assign(2, Ground{{20, 84, 560, 112}, {0, 0, 0x80}, 1, false, 0, {}});
    page = found(std::move(page));
    ASSERT_TRUE(at(page, 0).shadedSpan);
    EXPECT_NEAR(at(page, 0).shadedSpan->left, 20, 0.01);
}

TEST(ParagraphBorders, ALineInTheMiddleOfItsGroundIsCentred) {
    const struct {
        const char* why;
        double left; ///< of a line of 195 points
        Rect ground;
        bool isCentred;
    } cases[] = {
        {"the ground is as wide as the column", 200, {72, 84, 523, 112}, true},
        {"the line stands elsewhere", 220, {72, 84, 523, 112}, false},
        {"the ground is narrower", 200, {90, 84, 505, 112}, false},
    };
    for (const auto& [why, left, ground, isCentred] : cases) {
        PageLayout page = pageWith({100});
        auto& paragraph = std::get<ParagraphDraft>(page.blocks[0].value);
        paragraph.box.left = left;
        paragraph.box.right = left + 195;
        paragraph.indentStart = left - 72;
        page.freeGrounds = {{ground, {0, 0, 0x80}, 1, false, 0, {}}};
        page = found(std::move(page));
        EXPECT_EQ(at(page, 0).alignment, isCentred ? document::Alignment::Center : document::Alignment::Start) << why;
        EXPECT_EQ(at(page, 0).indentStart, isCentred ? 0 : left - 72) << why;
    }
}

TEST(ParagraphBorders, TheGroundOfSeveralLinesHasBordersOfItsColour) {
    PageLayout page = pageWith({100});
    auto& paragraph = std::get<ParagraphDraft>(page.blocks[0].value);
    paragraph.lines.push_back(paragraph.lines.front());
    page.freeGrounds = {{{60, 91, 530, 103}, {0, 0, 0x80}, 1, false, 0, {}}};
    page = found(std::move(page));
    EXPECT_FALSE(at(page, 0).shadedSpan);
    EXPECT_EQ(sides(page, 0), "lr");
    EXPECT_EQ(at(page, 0).borders.left.spacePoints, 12);
}

TEST(ParagraphBorders, TheGroundOfALabelIsNoShading) {
    struct Case {
        double left, right;
        const char* why;
    };
    for (const Case& label :
         {Case{40, 260, "the words stand in the middle of it"}, Case{70, 202, "another font would break the line"}}) {
        PageLayout page = pageWith({100});
        std::get<ParagraphDraft>(page.blocks[0].value).box.right = 200;
        page.freeGrounds = {{{label.left, 88, label.right, 108}, {0xFF, 0xFF, 0}, 1, false, 0, {}}};
        page = found(std::move(page));
        EXPECT_FALSE(page.freeGrounds[0].isUsed) << label.why;
        EXPECT_EQ(at(page, 0).shading, std::nullopt) << label.why;
        EXPECT_FALSE(at(page, 0).shadedSpan) << label.why;
    }
}

} // namespace
} // namespace orvane::layout
