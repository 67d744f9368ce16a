#include "layout/page/FreeDrawings.h"

#include "engine/layout/LineArt.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvane::layout {
namespace {

using testing::SizeIs;
using tests::pageWith;
using tests::ruleAt;

/// Draws what is free, where nine pieces are the most.
void draw(PageLayout& page) {
    drawFreeRules(page, 9, {});
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

TEST(FreeDrawings, HangInTheCellThatTheyLieIn) {
    PageLayout page = pageWith({100});
    TableDraft table;
    table.box = {72, 200, 472, 300};
    for (const double left : {72.0, 272.0}) {
        CellDraft& cell = table.cells.emplace_back();
        cell.box = {left, 200, left + 200, 300};
        ParagraphDraft paragraph;
        paragraph.lines.push_back(tests::makeLine("label", left + 5, 215));
        paragraph.box = paragraph.lines.front().box;
        cell.blocks.emplace_back().value = std::move(paragraph);
    }
    page.blocks.emplace_back().value = std::move(table);
    page.freeRules = {ruleAt(RuleDirection::Horizontal, 250, 282, 462),
                      ruleAt(RuleDirection::Horizontal, 280, 82, 462)};
    draw(page);
    ASSERT_THAT(page.blocks, SizeIs(3)) << "what lies over both cells is of the page";
    EXPECT_TRUE(std::holds_alternative<FigureDraft>(page.blocks[0].value));
    const auto& drawn = std::get<TableDraft>(page.blocks[2].value);
    EXPECT_THAT(drawn.cells[0].blocks, SizeIs(1));
    ASSERT_THAT(drawn.cells[1].blocks, SizeIs(2));
    EXPECT_TRUE(std::holds_alternative<FigureDraft>(drawn.cells[1].blocks[0].value));
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

TEST(FreeDrawings, OfOneLookAreOneShapeWhereTheyAreMany) {
    PageLayout page = pageWith({100});
    for (int i = 0; i < 10; ++i)
        page.freeRules.push_back(ruleAt(RuleDirection::Horizontal, 110 + i, 72, 523));
    draw(page);
    ASSERT_THAT(page.blocks, SizeIs(2));
    ASSERT_TRUE(figureAt(page, 0).drawing);
    EXPECT_THAT(figureAt(page, 0).drawing->shapes, SizeIs(1));
    EXPECT_FALSE(figureAt(page, 0).drawing->isPictureAtBest);
}

TEST(FreeDrawings, AreOneDrawingWhereTheirGroupsAreTooMany) {
    PageLayout page = pageWith({100});
    for (int i = 0; i < 10; ++i)
        page.freeRules.push_back(ruleAt(RuleDirection::Horizontal, 110 + 20 * i, 72, 523));
    draw(page);
    ASSERT_THAT(page.blocks, SizeIs(2));
    EXPECT_EQ(figureAt(page, 0).box.bottom, 290.25);
    EXPECT_THAT(figureAt(page, 0).drawing->shapes, SizeIs(1));
}

TEST(FreeDrawings, AreOnePictureWhereTheirLooksAreTooMany) {
    PageLayout page = pageWith({100});
    for (std::uint8_t i = 0; i < 10; ++i) {
        Ground ground;
        ground.box = {100.0 + 5 * i, 100, 105.0 + 5 * i, 105};
        ground.color = {i, 0, 0};
        page.freeGrounds.push_back(ground);
    }
    draw(page);
    ASSERT_THAT(page.blocks, SizeIs(2));
    ASSERT_TRUE(figureAt(page, 0).drawing);
    EXPECT_TRUE(figureAt(page, 0).drawing->isPictureAtBest);
    EXPECT_THAT(figureAt(page, 0).drawing->shapes, SizeIs(10)) << "none is lost";
}

TEST(FreeDrawings, ShareWhatADocumentBears) {
    const PageParameters::FreeDrawings limits;
    EXPECT_EQ(mostFreeShapes({limits.shapesOfDocument}, limits), limits.shapesOfDocument);
    EXPECT_EQ(mostFreeShapes({0, 0, 0, 100000}, limits), limits.shapesOfDocument) << "pages without any leave theirs";
    EXPECT_EQ(mostFreeShapes({500, 100000, 100000}, limits), (limits.shapesOfDocument - 500) / 2);
    EXPECT_EQ(mostFreeShapes(std::vector<std::size_t>(1000, 100), limits), limits.leastShapesOfPage);
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
