#include "layout/tables/RowParts.h"

namespace orvane::layout {

TableGrid partRows(const TableGrid& grid, const std::vector<std::vector<double>>& edges,
                   const std::vector<char>& isParted) {
    std::vector<int> newRow; // of each old row, and of what follows the last
    TableGrid parted{grid.columnEdges, {}, {}};
    for (std::size_t row = 0; row < edges.size(); ++row) {
        newRow.push_back(static_cast<int>(parted.rowEdges.size()));
        parted.rowEdges.push_back(grid.rowEdges[row]);
        parted.rowEdges.insert(parted.rowEdges.end(), edges[row].begin(), edges[row].end());
    }
    newRow.push_back(static_cast<int>(parted.rowEdges.size()));
    parted.rowEdges.push_back(grid.rowEdges.back());

    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        const GridCell& cell = grid.cells[i];
        const int first = newRow[static_cast<std::size_t>(cell.row)];
        const int end = newRow[static_cast<std::size_t>(cell.row + cell.rowSpan)];
        for (int row = first; isParted[i] && row < end; ++row)
            parted.cells.push_back({row, cell.column, 1, cell.columnSpan});
        if (!isParted[i])
            parted.cells.push_back({first, cell.column, end - first, cell.columnSpan});
    }
    sortCells(parted.cells);
    return parted;
}

} // namespace orvane::layout
