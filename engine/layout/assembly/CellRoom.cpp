#include "layout/assembly/CellRoom.h"

#include "layout/assembly/TableReach.h"

#include <algorithm>
#include <map>

namespace orvane::layout {
namespace {

/// Space above and below the text.
struct Room {
    double above = 0;
    double below = 0;
};

/// Whether the distances of the cell's text from its borders say anything: it stands upright, and on one page.
bool isMeasured(const CellDraft& cell, const std::vector<AssembledBlock>& blocks) {
    return !blocks.empty() && cell.direction == document::TextDirection::Horizontal && blocks.front().draft &&
           blocks.back().draft && blocks.front().draft->page == blocks.back().lastPage;
}

Room smallestRoom(const AssembledBlock& table, const DraftTable& draft, const AssemblyParameters::TableCells& limits) {
    Room room{limits.largestMargin, limits.largestMargin};
    for (std::size_t i = 0; i < draft.cells.size() && i < table.cells.size(); ++i) {
        const CellDraft& cell = draft.cells[i].cell;
        const std::vector<AssembledBlock>& blocks = table.cells[i];
        if (!isMeasured(cell, blocks))
            continue;
        room.above = std::min(room.above, blocks.front().top - cell.box.top - reachOf(cell.borders.top));
        room.below = std::min(room.below, cell.box.bottom - reachOf(cell.borders.bottom) - blocks.back().bottom);
    }
    // Rows keep their heights where lines come out a hair higher than they were.
    return {std::max(0.0, room.above), std::max(0.0, room.below - limits.slackBelow)};
}

/// The least distance of a text from the upper edge of its row, by row.
std::map<int, double> leastDrops(const AssembledBlock& table, const DraftTable& draft) {
    std::map<int, double> drops;
    for (std::size_t i = 0; i < draft.cells.size() && i < table.cells.size(); ++i) {
        const CellDraft& cell = draft.cells[i].cell;
        if (!isMeasured(cell, table.cells[i]))
            continue;
        const double drop = table.cells[i].front().top - cell.box.top;
        const auto [least, isFirst] = drops.try_emplace(cell.row, drop);
        least->second = std::min(least->second, drop);
    }
    return drops;
}

} // namespace

void fitCellRoom(AssembledBlock& table, const AssemblyParameters::TableCells& limits) {
    auto* target = std::get_if<document::Table>(&table.block.value);
    if (!target || !table.draft)
        return;
    const Room room = smallestRoom(table, std::get<DraftTable>(table.draft->value), limits);
    for (document::TableRow& row : target->rows) {
        for (document::TableCell& cell : row.cells) {
            cell.marginTop = twipsFromPoints(room.above);
            cell.marginBottom = twipsFromPoints(room.below);
        }
    }
}

void lowerCellTexts(AssembledBlock& table, const AssemblyParameters::TableCells& limits) {
    const auto* target = std::get_if<document::Table>(&table.block.value);
    if (!target || !table.draft)
        return;
    const auto& draft = std::get<DraftTable>(table.draft->value);
    const double margin = smallestRoom(table, draft, limits).above;
    const std::map<int, double> drops = leastDrops(table, draft);
    for (std::size_t i = 0; i < draft.cells.size() && i < table.cells.size(); ++i) {
        const CellDraft& cell = draft.cells[i].cell;
        if (cell.alignment != document::CellAlignment::Top || !isMeasured(cell, table.cells[i]))
            continue;
        AssembledBlock& first = table.cells[i].front();
        const DraftParagraph* text = first.draftParagraph();
        if (!text || !first.paragraph())
            continue;
        const double least = limits.leastDrop * text->firstLine().fontSize;
        // Rows that differ a little in height are none the worse for having one margin.
        const double ofMargin = margin + reachOf(cell.borders.top), ofRow = drops.at(cell.row);
        const double drop = first.top - cell.box.top - (ofRow - ofMargin >= least ? ofMargin : ofRow);
        if (drop >= least)
            first.paragraph()->properties.spaceBefore = twipsFromPoints(drop);
    }
}

} // namespace orvane::layout
