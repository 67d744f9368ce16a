#include "layout/assembly/KeepRelease.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::documentOf;
using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;
using tests::paragraphAt;

DraftBlock heading(std::size_t page, double baseline) {
    DraftBlock block = makeBlock(makeParagraph({makeLine("Heading", 72, baseline)}), page);
    block.paragraph()->role = ParagraphRole::Heading;
    block.paragraph()->level = 1;
    return block;
}

TEST(KeepRelease, LetsAHeadingStandAloneAtAPagesFootWhereItDid) {
    DocumentDraft draft = makeDraft(2);
    draft.blocks = {heading(0, 100), makeBlock(makeParagraph({makeLine("text", 72, 120)})), heading(0, 760),
                    makeBlock(makeParagraph({makeLine("text", 72, 84)}), 1)};
    const document::Document document = documentOf(draft);
    EXPECT_TRUE(paragraphAt(document, 0).properties.keepWithNext);
    EXPECT_FALSE(paragraphAt(document, 2).properties.keepWithNext);
}

/// A paragraph with so many lines at the foot of a page and at the head of the next one.
document::Document parted(int before, int after) {
    DocumentDraft draft = makeDraft(2);
    const auto lines = [](int count, double baseline) {
        std::vector<Line> made;
        for (int i = 0; i < count; ++i)
            made.push_back(makeLine("line", 72, baseline + 12 * i));
        return makeParagraph(std::move(made));
    };
    DraftBlock block = makeBlock(lines(before, 720));
    block.paragraph()->pieces.push_back({1, 0, 0, tests::kColumn, lines(after, 84)});
    draft.blocks = {block};
    return documentOf(draft);
}

TEST(KeepRelease, LetsALineOfACellStandAloneWhereItDid) {
    DocumentDraft draft = makeDraft(2);
    DraftTable table;
    table.table.columnEdges = {72, 272};
    table.table.rowEdges = {700, 760};
    table.cutRows = {0};
    DraftCell& cell = table.cells.emplace_back();
    cell.cell.box = {72, 700, 272, 760};
    cell.blocks.push_back(makeBlock(makeParagraph({makeLine("line", 78, 750)})));
    cell.blocks[0].paragraph()->pieces.push_back(
        {1, 0, 0, tests::kColumn, makeParagraph({makeLine("line", 78, 84), makeLine("line", 78, 96)})});
    draft.blocks.emplace_back().value = std::move(table);
    const document::Document document = documentOf(draft);
    const auto& made = std::get<document::Table>(document.sections.at(0).blocks.at(0).value);
    EXPECT_FALSE(
        std::get<document::Paragraph>(made.rows.at(0).cells.at(0).blocks.at(0).value).properties.hasWidowControl);
    EXPECT_EQ(made.rows.at(0).height, Twips(0)) << "the room left on the page is none of the row's";
}

TEST(KeepRelease, LetsALineStandAloneWhereItDid) {
    EXPECT_TRUE(paragraphAt(parted(2, 2), 0).properties.hasWidowControl);
    EXPECT_FALSE(paragraphAt(parted(1, 2), 0).properties.hasWidowControl);
    EXPECT_FALSE(paragraphAt(parted(2, 1), 0).properties.hasWidowControl);
}

} // namespace
} // namespace orvane::layout
