#include "layout/structure/RowKeeping.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeLine;
using tests::makeParagraph;

/// A table of two rows, the second on the next page with so many lines; the first page's part ends at `bottom`.
DocumentDraft draftOf(double bottom, int lines) {
    DocumentDraft draft = tests::makeDraft(2);
    DraftTable table;
    table.table.columnEdges = {72, 272};
    table.table.rowEdges = {bottom - 20, bottom, bottom + 20};
    table.furtherParts.push_back({1, {72, 72, 272, 92}, 1});
    const auto add = [&](int row, double top, int count) {
        DraftCell& cell = table.cells.emplace_back();
        cell.cell.row = row;
        cell.cell.box = {72, top, 272, top + 20};
        std::vector<Line> made;
        for (int i = 0; i < count; ++i)
            made.push_back(makeLine("text", 78, top + 12 + 12 * i));
        cell.blocks.push_back(makeBlock(makeParagraph(std::move(made)), static_cast<std::size_t>(row)));
    };
    add(0, bottom - 20, 1);
    add(1, 72, lines);
    DraftBlock& block = draft.blocks.emplace_back();
    block.box = {72, bottom - 20, 272, bottom};
    block.value = std::move(table);
    return draft;
}

bool keepsRowsWhole(DocumentDraft draft) {
    const TextArea area{{72, 72, 523, 770}, {72, 523}, {}};
    findWholeRows(draft, {0, draft.blocks.size(), area}, {});
    return std::get<DraftTable>(draft.blocks[0].value).keepsRowsWhole;
}

TEST(RowKeeping, SeesThatARowWasNotCut) {
    EXPECT_TRUE(keepsRowsWhole(draftOf(700, 8)));
    EXPECT_FALSE(keepsRowsWhole(draftOf(750, 8))) << "no room for two lines";
    EXPECT_FALSE(keepsRowsWhole(draftOf(730, 3))) << "three lines do not part";
}

TEST(RowKeeping, KnowsThatARowWasCut) {
    DocumentDraft draft = draftOf(700, 8);
    std::get<DraftTable>(draft.blocks[0].value).cutRows = {1};
    EXPECT_FALSE(keepsRowsWhole(std::move(draft)));
}

} // namespace
} // namespace orvane::layout
