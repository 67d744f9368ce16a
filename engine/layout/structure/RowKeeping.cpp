#include "layout/structure/RowKeeping.h"

#include "layout/structure/PageFloor.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// How far below its row's top the first part of the cell's text reaches that could stand on a page of its own.
double needOf(const DraftCell& cell) {
    const DraftParagraph* first = cell.blocks.empty() ? nullptr : cell.blocks.front().paragraph();
    if (!first)
        return cell.cell.box.height();
    const std::vector<Line>& lines = first->pieces.front().text.lines;
    return lines[linesToStart(lines.size()) - 1].box.bottom - cell.cell.box.top;
}

/// What the row needs to start on a page. Cells that reach over several rows need not end with it.
double needOf(const DraftTable& table, int row) {
    double need = 0;
    for (const DraftCell& cell : table.cells)
        if (cell.cell.row == row && !cell.blocks.empty())
            need = std::max(need, needOf(cell));
    return need;
}

bool keepsRowsWhole(const DraftBlock& block, const DraftTable& table, const DocumentDraft& draft, const Rect& area,
                    double slack) {
    if (!table.cutRows.empty())
        return false;
    std::size_t page = block.page;
    double bottom = block.box.bottom;
    for (const DraftTablePart& part : table.furtherParts) {
        const double need = needOf(table, part.firstRow);
        if (need > 0 && floorOf(draft, page, block.band, area) - bottom > need + slack)
            return true;
        page = part.page;
        bottom = part.box.bottom;
    }
    return false;
}

} // namespace

void findWholeRows(DocumentDraft& draft, const BlockRange& range, const StructureParameters::PageSetup& parameters) {
    for (std::size_t i = range.first; i < range.last; ++i) {
        DraftBlock& block = draft.blocks[i];
        if (auto* table = std::get_if<DraftTable>(&block.value))
            table->keepsRowsWhole = keepsRowsWhole(block, *table, draft, range.area.box, parameters.startRoom);
    }
}

} // namespace orvane::layout
