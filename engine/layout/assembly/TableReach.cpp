#include "layout/assembly/TableReach.h"

#include <algorithm>

namespace orvane::layout {

double reachOf(const document::Border& border) {
    const double width = static_cast<double>(border.width.value) / 8;
    switch (border.kind) {
    case document::BorderKind::None:
        return 0;
    case document::BorderKind::Double:
        return 1.5 * width; // two lines and a gap as wide
    default:
        return width / 2;
    }
}

TableReach reachOf(const DraftTable& table) {
    TableReach reach;
    const int columns = static_cast<int>(table.table.columnEdges.size()) - 1;
    const int rows = static_cast<int>(table.table.rowEdges.size()) - 1;
    for (const DraftCell& drafted : table.cells) {
        const CellDraft& cell = drafted.cell;
        if (cell.column == 0)
            reach.left = std::max(reach.left, reachOf(cell.borders.left));
        if (cell.row == 0)
            reach.top = std::max(reach.top, reachOf(cell.borders.top));
        if (cell.column + cell.columnSpan == columns)
            reach.right = std::max(reach.right, reachOf(cell.borders.right));
        if (cell.row + cell.rowSpan == rows)
            reach.bottom = std::max(reach.bottom, reachOf(cell.borders.bottom));
    }
    return reach;
}

} // namespace orvane::layout
