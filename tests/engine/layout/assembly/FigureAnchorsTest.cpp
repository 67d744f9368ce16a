#include "layout/assembly/FigureAnchors.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;

/// A box behind the text.
DraftBlock makeBox(const Rect& box) {
    DraftBlock block;
    block.box = box;
    FigureDraft figure;
    figure.figure.box = box;
    figure.figure.isBackground = true;
    figure.figure.drawing.emplace();
    figure.figure.drawing->shapes.emplace_back();
    block.value = std::move(figure);
    return block;
}

const document::Placement& placementIn(const std::vector<document::Block>& blocks, std::size_t index) {
    return std::get<document::Figure>(blocks.at(index).value).placement;
}

double points(Emu length) {
    return static_cast<double>(length.value) / 12700;
}

TEST(FigureAnchors, HangABoxOnTheParagraphThatItStandsAround) {
    DocumentDraft draft = makeDraft(1);
    for (const double baseline : {88.0, 100.0, 112.0, 124.0, 136.0})
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Above", 72, baseline)})));
    draft.blocks.push_back(makeBox({70, 190, 200, 204}));
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Name", 72, 200)})));
    const document::Document document = tests::documentOf(draft);
    const std::vector<document::Block>& blocks = document.sections.at(0).blocks;
    const document::Placement& placement = placementIn(blocks, 5);
    EXPECT_EQ(placement.wrapping, document::Wrapping::BehindText);
    EXPECT_EQ(placement.verticalAnchor, document::VerticalAnchor::Paragraph);
    EXPECT_EQ(placement.horizontalAnchor, document::HorizontalAnchor::Page);
    EXPECT_EQ(placement.x, emuFromPoints(70));
    const auto& paragraph = std::get<document::Paragraph>(blocks.at(6).value);
    const double above = pointsFromTwips(paragraph.properties.spaceBefore);
    EXPECT_NEAR(points(placement.y), above, 8) << "the space before a paragraph is part of it";
}

TEST(FigureAnchors, PutADrawingBelowTheSpaceAboveIt) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Above", 72, 88)})));
    draft.blocks.push_back(makeBox({72, 300, 280, 400}));
    draft.blocks.back().page = 1;
    draft.blocks.back().startsPage = true;
    auto& drawing = std::get<FigureDraft>(draft.blocks.back().value);
    drawing.figure.isBackground = false;
    drawing.isInline = true;
    const document::Document document = tests::documentOf(draft);
    const std::vector<document::Block>& blocks = document.sections.at(0).blocks;
    ASSERT_EQ(blocks.size(), 3u);
    const auto& paragraph = std::get<document::Paragraph>(blocks[2].value);
    ASSERT_GT(paragraph.properties.spaceBefore.value, 0);
    EXPECT_NEAR(points(placementIn(blocks, 1).y), pointsFromTwips(paragraph.properties.spaceBefore), 0.1);
}

TEST(FigureAnchors, LetAPictureGoWithTheOneThatItStandsBeside) {
    DocumentDraft draft = makeDraft(1);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Above", 72, 88)})));
    draft.blocks.push_back(tests::makePictureBlock({72, 100, 280, 300}));
    draft.blocks.push_back(tests::makePictureBlock({300, 110, 500, 300}));
    std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Below", 72, 320)})));
    const document::Document document = tests::documentOf(draft);
    const std::vector<document::Block>& blocks = document.sections.at(0).blocks;
    ASSERT_EQ(blocks.size(), 4u);
    const document::Placement& placement = placementIn(blocks, 1);
    EXPECT_EQ(placement.verticalAnchor, document::VerticalAnchor::Paragraph) << "of the picture behind it";
    EXPECT_TRUE(std::holds_alternative<document::Paragraph>(blocks[2].value));
    EXPECT_GE(points(placement.y), 10);
    EXPECT_EQ(placement.x, emuFromPoints(300));
}

TEST(FigureAnchors, LetPicturesGoWithTheTextBetweenThem) {
    DocumentDraft draft = makeDraft(1);
    for (const double baseline : {88.0, 100.0, 112.0})
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Above", 72, baseline)})));
    for (const double left : {100.0, 400.0}) {
        draft.blocks.push_back(tests::makePictureBlock({left, 145, left + 60, 205}));
        std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
    }
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Between", 250, 150)})));
    draft.blocks.push_back(tests::makePictureBlock({100, 230, 160, 280}));
    std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Below", 72, 300)})));
    const document::Document document = tests::documentOf(draft);
    const std::vector<document::Block>& blocks = document.sections.at(0).blocks;
    for (const std::size_t picture : {3u, 4u}) {
        const document::Placement& placement = placementIn(blocks, picture);
        EXPECT_EQ(placement.verticalAnchor, document::VerticalAnchor::Paragraph);
        EXPECT_LT(points(placement.y), 30) << "it begins beside its paragraph";
        EXPECT_EQ(placement.horizontalAnchor, document::HorizontalAnchor::Page);
        EXPECT_EQ(placement.wrapping, document::Wrapping::Square);
    }
    EXPECT_EQ(placementIn(blocks, 6).verticalAnchor, document::VerticalAnchor::Page) << "no text begins beside it";
}

TEST(FigureAnchors, LeaveOnThePageWhatIsOfThePage) {
    struct Row {
        Rect box;
        std::size_t page;
        const char* why;
    };
    const Row rows[] = {
        {{0, 0, 595, 842}, 0, "the paper's colour"},
        {{70, 400, 200, 420}, 0, "nothing is written there"},
        {{70, 190, 200, 204}, 1, "the paragraph behind it stands on the next page"},
    };
    for (const Row& row : rows) {
        DocumentDraft draft = makeDraft(2);
        draft.blocks.push_back(makeBox(row.box));
        draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Name", 72, 200)}), row.page));
        const document::Document document = tests::documentOf(draft);
        EXPECT_EQ(placementIn(document.sections.at(0).blocks, 0).verticalAnchor, document::VerticalAnchor::Page)
            << row.why;
    }
}

TEST(FigureAnchors, KeepOnItsPageWhatFloatsAtTheEndOfIt) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("First", 72, 88)})));
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Last", 72, 120)})));
    draft.blocks.push_back(makeBox({70, 400, 200, 420}));
    DraftBlock ofNextPage = makeBox({70, 500, 200, 520});
    ofNextPage.page = 1;
    draft.blocks.push_back(ofNextPage);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Next", 72, 88)}), 1));
    const document::Document document = tests::documentOf(draft);
    const std::vector<document::Block>& blocks = document.sections.at(0).blocks;
    ASSERT_EQ(blocks.size(), 5u);
    EXPECT_EQ(placementIn(blocks, 1).y, emuFromPoints(400)) << "before the last paragraph of its page";
    EXPECT_TRUE(std::holds_alternative<document::Paragraph>(blocks[2].value));
    EXPECT_EQ(placementIn(blocks, 3).y, emuFromPoints(500)) << "before the first of the next page";
}

TEST(FigureAnchors, HangWhatFloatsInACellOnTheCell) {
    for (const bool isBackground : {true, false}) {
        DocumentDraft draft = makeDraft(1);
        DraftTable table;
        table.table.columnEdges = {172, 372};
        table.table.rowEdges = {100, 160};
        table.table.box = {172, 100, 372, 160};
        DraftCell& cell = table.cells.emplace_back();
        cell.cell.box = table.table.box;
        cell.blocks.push_back(makeBox({182, 130, 282, 145}));
        std::get<FigureDraft>(cell.blocks[0].value).figure.isBackground = isBackground;
        DraftBlock& block = draft.blocks.emplace_back();
        block.box = table.table.box;
        block.value = std::move(table);
        const document::Document document = tests::documentOf(draft);
        const auto& made = std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
        const document::TableCell& written = made.rows.at(0).cells.at(0);
        const document::Placement& placement = placementIn(written.blocks, 0);
        EXPECT_EQ(placement.verticalAnchor, document::VerticalAnchor::Paragraph);
        EXPECT_EQ(placement.horizontalAnchor, document::HorizontalAnchor::Column);
        EXPECT_EQ(placement.y, emuFromPoints(30));
        EXPECT_NEAR(points(placement.x), 10 - pointsFromTwips(written.marginLeft), 0.01);
    }
}

} // namespace
} // namespace orvane::layout
