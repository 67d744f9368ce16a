#include "layout/assembly/BlockAssembler.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

TEST(BlockAssembler, PutsTurnedTextThatFloatsIntoAFrame) {
    DocumentDraft draft = tests::draftOfLines({{"text", 100}, {"more", 112.21}});
    Line turned = tests::makeLine("stamp", 0, 0);
    turned.angle = 270;
    turned.box = {20, 300, 32, 500};
    DraftBlock stamp = tests::makeBlock(tests::makeParagraph({turned}));
    stamp.paragraph()->pieces[0].text.isFloating = true;
    draft.blocks.insert(draft.blocks.begin() + 1, stamp);
    const document::Document document = tests::documentOf(draft);
    const auto& blocks = document.sections.at(0).blocks;
    ASSERT_EQ(blocks.size(), 3u);
    const auto& frame = std::get<document::Frame>(blocks[1].value);
    EXPECT_EQ(frame.direction, document::TextDirection::Upwards);
    EXPECT_EQ(frame.placement.verticalAnchor, document::VerticalAnchor::Page);
    EXPECT_NEAR(static_cast<double>(frame.placement.x.value), static_cast<double>(emuFromPoints(20).value), 2 * 12700);
    EXPECT_EQ(tests::paragraphAt(document, 0).properties.spaceAfter, Twips(0)) << "it takes no room between lines";
}

TEST(BlockAssembler, CountsTheGapBehindATableFromItsLastPart) {
    DocumentDraft draft = tests::makeDraft(2);
    DraftTable table;
    table.table.columnEdges = {72, 523};
    table.table.rowEdges = {600, 700, 800};
    table.furtherParts.push_back({1, {72, 72, 523, 172}});
    for (const int row : {0, 1}) {
        DraftCell& cell = table.cells.emplace_back();
        cell.cell.row = row;
        cell.cell.box = {72, 600.0 + 100 * row, 523, 700.0 + 100 * row};
    }
    DraftBlock& block = draft.blocks.emplace_back();
    block.box = {72, 600, 523, 700};
    block.value = std::move(table);
    draft.blocks.push_back(tests::makeBlock(tests::makeParagraph({tests::makeLine("below", 72, 210)}), 1));
    const document::Document document = tests::documentOf(draft);
    // The line of Carlito at 10 points reaches 9.71 points above its baseline.
    EXPECT_NEAR(pointsFromTwips(tests::paragraphAt(document, 1).properties.spaceBefore), 210 - 9.71 - 172, 0.3);
}

TEST(BlockAssembler, DrawsRulesBetweenParagraphsOnlyWhereTwoAreAlike) {
    const document::Border rule{document::BorderKind::Single, EighthPoints(6), {}, 4};
    const auto betweenWith = [&](const std::vector<bool>& areRuled) {
        DocumentDraft draft = tests::makeDraft(1);
        double baseline = 100;
        for (const bool isRuled : areRuled) {
            DraftBlock& block = draft.blocks.emplace_back(
                tests::makeBlock(tests::makeParagraph({tests::makeLine("some words", 72, baseline)})));
            if (isRuled) {
                block.paragraph()->pieces[0].text.borders.top = rule;
                block.paragraph()->pieces[0].text.borders.top.spacePoints = static_cast<int>(baseline / 24);
            }
            baseline += 24;
        }
        const document::Document document = tests::documentOf(std::move(draft));
        std::string drawn;
        for (const document::Block& block : document.sections.at(0).blocks)
            drawn += std::get<document::Paragraph>(block.value).properties.betweenBorder.kind == rule.kind ? '+' : '-';
        return drawn;
    };
    EXPECT_EQ(betweenWith({true, false}), "--");
    EXPECT_EQ(betweenWith({true, true}), "++");
    EXPECT_EQ(betweenWith({true, true, false, true}), "++--");
    EXPECT_EQ(betweenWith({false, true, true, true}), "-+++");
}

} // namespace
} // namespace orvane::layout
