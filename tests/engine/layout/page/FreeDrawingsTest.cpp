#include "layout/page/FreeDrawings.h"

#include "engine/layout/LineArt.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvane::layout {
namespace {

using testing::SizeIs;
using tests::pageWith;

/// Draws what is free, where nine pieces are the most; how many diagnostics there are.
std::size_t draw(PageLayout& page) {
    Diagnostics diagnostics;
    drawFreeRules(page, {}, 9, diagnostics);
    return diagnostics.entries().size();
}

Rule ruleAt(RuleDirection direction, double position, double from, double to) {
    Rule rule;
    rule.direction = direction;
    rule.position = position;
    rule.from = from;
    rule.to = to;
    return rule;
}

const Figure& figureAt(const PageLayout& page, std::size_t index) {
    return std::get<FigureDraft>(page.blocks.at(index).value).figure;
}

TEST(FreeDrawings, DrawCrossingRulesAsOne) {
    PageLayout page = pageWith({100, 400});
    page.freeRules = {ruleAt(RuleDirection::Horizontal, 300, 100, 200), ruleAt(RuleDirection::Vertical, 150, 250, 350)};
    draw(page);
    ASSERT_THAT(page.blocks, SizeIs(3));
    const Figure& star = figureAt(page, 1);
    EXPECT_TRUE(star.isBackground) << "what stands over it keeps its place";
    ASSERT_TRUE(star.drawing);
    EXPECT_THAT(star.drawing->shapes, SizeIs(2));
    EXPECT_EQ(star.box, (Rect{100, 250, 200, 350}));
    EXPECT_TRUE(page.freeRules.empty());
}

TEST(FreeDrawings, HangOnTheNearestParagraph) {
    PageLayout page = pageWith({100, 200, 300});
    page.freeRules = {ruleAt(RuleDirection::Horizontal, 205, 72, 120)};
    draw(page);
    ASSERT_THAT(page.blocks, SizeIs(4));
    EXPECT_TRUE(std::holds_alternative<FigureDraft>(page.blocks[1].value)) << "before the second one";
}

TEST(FreeDrawings, LeaveOutWhatIsDrawnOtherwise) {
    PageLayout page = pageWith({100});
    page.freeRules = {ruleAt(RuleDirection::Horizontal, 110, 72, 523)};
    page.freeRules[0].isUsed = true;
    draw(page);
    EXPECT_THAT(page.blocks, SizeIs(1));
}

TEST(FreeDrawings, KeepTheGradientOfAGround) {
    PageLayout page = pageWith({});
    Ground ground;
    ground.box = {100, 100, 200, 150};
    ground.gradient = document::Gradient{document::GradientKind::Linear, 90, {{0, kBlack}, {1, kWhite}}};
    page.freeGrounds = {ground};
    draw(page);
    ASSERT_THAT(page.blocks, SizeIs(1));
    ASSERT_TRUE(figureAt(page, 0).drawing);
    EXPECT_TRUE(figureAt(page, 0).drawing->shapes.at(0).gradient);
}

TEST(FreeDrawings, AreNotMoreThanWordProcessorsBear) {
    PageLayout page = pageWith({100});
    page.freeRules.assign(10, ruleAt(RuleDirection::Horizontal, 110, 72, 523));
    EXPECT_EQ(draw(page), 1u) << "the log tells";
    EXPECT_THAT(page.blocks, SizeIs(1));
    EXPECT_GT(mostFreeShapes(1, {}), 1000u);
    EXPECT_LT(mostFreeShapes(200, {}), 10u);
}

TEST(FreeDrawings, LeaveOutSpecks) {
    PageLayout page = pageWith({100});
    page.freeRules = {ruleAt(RuleDirection::Horizontal, 110, 72, 72.1)};
    page.freeRules[0].width = 0.5;
    draw(page);
    EXPECT_THAT(page.blocks, SizeIs(1));
}

TEST(FreeDrawings, PutPicturesBehindThatAGroundCovers) {
    const auto isSunk = [](std::uint32_t paintOrder) {
        PageLayout page = pageWith({});
        Figure shadow;
        shadow.box = {105, 105, 205, 155};
        shadow.picture.value = 1;
        shadow.paintOrder = 5;
        page.blocks.emplace_back().value = FigureDraft{shadow, true};
        Ground box;
        box.box = {100, 100, 200, 150};
        box.paintOrder = paintOrder;
        page.freeGrounds = {box};
        draw(page);
        return std::any_of(page.blocks.begin(), page.blocks.end(), [](const PageBlock& block) {
            const auto* draft = std::get_if<FigureDraft>(&block.value);
            return draft && draft->figure.picture.value == 1 && draft->figure.isBackground && !draft->isInline;
        });
    };
    EXPECT_TRUE(isSunk(6));
    EXPECT_FALSE(isSunk(4)) << "a picture on a ground is seen";
}

} // namespace
} // namespace orvane::layout
