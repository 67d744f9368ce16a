#include "engine/layout/DraftSupport.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;

/// A drawing of one shape between two paragraphs, with a word in it.
DocumentDraft draftWithDrawing() {
    DocumentDraft draft = makeDraft(1);
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Above", 72, 100)})));
    DraftBlock block;
    block.box = {172, 120, 372, 220};
    FigureDraft figure;
    figure.isInline = true;
    figure.figure.box = block.box;
    figure.figure.drawing.emplace();
    figure.figure.drawing->width = emuFromPoints(200);
    figure.figure.drawing->height = emuFromPoints(100);
    figure.figure.drawing->shapes.emplace_back();
    block.value = std::move(figure);
    block.labels.push_back(makeBlock(makeParagraph({makeLine("Boiler", 200, 180)})));
    draft.blocks.push_back(std::move(block));
    draft.blocks.push_back(makeBlock(makeParagraph({makeLine("Below", 72, 250)})));
    return draft;
}

TEST(FigureAssembler, HangsADrawingAndItsLabelsOnAParagraphOfItsHeight) {
    const document::Document document = tests::documentOf(draftWithDrawing());
    const std::vector<document::Block>& blocks = document.sections.at(0).blocks;
    ASSERT_EQ(blocks.size(), 5u);
    const auto& figure = std::get<document::Figure>(blocks[1].value);
    EXPECT_TRUE(std::holds_alternative<document::Drawing>(figure.content));
    EXPECT_EQ(figure.placement.verticalAnchor, document::VerticalAnchor::Paragraph);
    EXPECT_EQ(figure.placement.x, emuFromPoints(100)) << "from the column, which starts at 72 points";
    EXPECT_EQ(figure.placement.y, Emu(0));
    const auto& label = std::get<document::Frame>(blocks[2].value);
    EXPECT_EQ(label.placement.verticalAnchor, document::VerticalAnchor::Paragraph);
    EXPECT_EQ(label.placement.x, emuFromPoints(128));
    EXPECT_GT(label.placement.zOrder, figure.placement.zOrder);
    const document::Paragraph& room = tests::paragraphAt(document, 3);
    EXPECT_TRUE(room.inlines.empty());
    EXPECT_EQ(room.properties.lineSpacing.rule, document::LineSpacingRule::Exact);
    EXPECT_EQ(room.properties.lineSpacing.height, twipsFromPoints(100));
}

TEST(FigureAssembler, LetsNothingMakeWayForAPictureOverAnother) {
    DocumentDraft draft = makeDraft(1);
    for (const bool isOverlaid : {false, true}) {
        draft.blocks.push_back(tests::makePictureBlock({72, 120, 272, 220}));
        auto& figure = std::get<FigureDraft>(draft.blocks.back().value);
        figure.isInline = false;
        figure.isOverlaid = isOverlaid;
    }
    const document::Document document = tests::documentOf(draft);
    std::vector<document::Wrapping> wrappings;
    for (const document::Block& block : document.sections.at(0).blocks)
        if (const auto* figure = std::get_if<document::Figure>(&block.value))
            wrappings.push_back(figure->placement.wrapping);
    EXPECT_EQ(wrappings, (std::vector{document::Wrapping::Square, document::Wrapping::None}));
}

TEST(FigureAssembler, NamesTheSideAtWhichAPictureFloatsInRightToLeftText) {
    struct Row {
        double left; ///< of a picture 100 points wide; the column reaches from 72 to 523 points
        DocumentContext context;
        std::optional<document::HorizontalSide> side;
        double x;
    };
    DocumentContext rightToLeft;
    rightToLeft.isRightToLeft = true;
    const Row rows[] = {
        {74, rightToLeft, document::HorizontalSide::Left, 2},
        {422, rightToLeft, document::HorizontalSide::Right, 350},
        {248, rightToLeft, document::HorizontalSide::Center, 176},
        {100, rightToLeft, std::nullopt, 100},
        {74, {}, std::nullopt, 74},
    };
    for (const Row& row : rows) {
        DocumentDraft draft = makeDraft(1);
        draft.sections.emplace_back().setup.start = document::SectionStart::Continuous;
        draft.blocks.push_back(tests::makePictureBlock({row.left, 120, row.left + 100, 220}));
        std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
        draft.blocks.back().textColumn = ColumnSpan{72, 523};
        Diagnostics diagnostics;
        const document::Document document = assembleDocument(std::move(draft), row.context, {}, {}, {}, diagnostics);
        const auto& placement = std::get<document::Figure>(document.sections.at(0).blocks.at(0).value).placement;
        EXPECT_EQ(placement.side, row.side) << row.left;
        EXPECT_EQ(placement.x, emuFromPoints(row.x)) << row.left;
        EXPECT_EQ(placement.horizontalAnchor,
                  row.side ? document::HorizontalAnchor::Column : document::HorizontalAnchor::Page);
    }
}

TEST(FigureAssembler, LeadsWhereTheLinkOverAPictureDoes) {
    DocumentDraft draft = makeDraft(1);
    draft.pages[0].links.resize(2);
    draft.pages[0].links[0] = {{{70, 330, 270, 340}}, "https://example.org/beside", {}};
    draft.pages[0].links[1] = {{{70, 118, 274, 430}}, "https://example.org/over", {}};
    draft.blocks.push_back(tests::makePictureBlock({72, 120, 272, 220}));
    draft.blocks.push_back(tests::makePictureBlock({72, 320, 272, 420}));
    std::get<FigureDraft>(draft.blocks.back().value).isInline = false;
    const document::Document document = tests::documentOf(draft);
    const auto& link = std::get<document::Link>(tests::paragraphAt(document, 0).inlines.at(0).value);
    EXPECT_EQ(link.target.uri, "https://example.org/over");
    EXPECT_TRUE(std::holds_alternative<document::Picture>(link.inlines.at(0).value));
    const auto& figure = std::get<document::Figure>(document.sections.at(0).blocks.at(1).value);
    EXPECT_EQ(std::get<document::Picture>(figure.content).link, link.target);
}

TEST(FigureAssembler, LetsAPictureReachIntoTheMargins) {
    DocumentDraft draft = makeDraft(1);
    draft.blocks.push_back(tests::makePictureBlock({22, 120, 553, 220}));
    const document::Document document = tests::documentOf(draft);
    const document::ParagraphProperties& format = tests::paragraphAt(document, 0).properties;
    EXPECT_EQ(format.indentStart, twipsFromPoints(-50));
    EXPECT_EQ(format.indentEnd, twipsFromPoints(-30.5)) << "and has room to spare";
}

} // namespace
} // namespace orvane::layout
