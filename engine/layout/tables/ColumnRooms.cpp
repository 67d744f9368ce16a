#include "layout/tables/ColumnRooms.h"

#include <algorithm>

namespace orvane::layout {

ColumnRooms::ColumnRooms(const TableGrid& grid, const std::vector<std::vector<Line>>& linesOfCell, TableEdges edges) {
    if (edges == TableEdges::Ruled || edges == TableEdges::Boxed)
        takeEdges(grid, linesOfCell);
    else
        takeTexts(grid, linesOfCell);
}

/// Between the edges, less the space that all texts keep from them.
void ColumnRooms::takeEdges(const TableGrid& grid, const std::vector<std::vector<Line>>& linesOfCell) {
    double space = grid.box().width();
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        const Rect cell = grid.boxOf(grid.cells[i]);
        for (const Line& line : linesOfCell[i])
            space = std::min({space, line.box.left - cell.left, cell.right - line.box.right});
    }
    space = std::max(space, 0.0);
    for (std::size_t i = 0; i + 1 < grid.columnEdges.size(); ++i) {
        const ColumnSpan edges{grid.columnEdges[i], grid.columnEdges[i + 1]};
        const double most = std::min(space, (edges.right - edges.left) / 2);
        m_columns.push_back({edges.left + most, edges.right - most});
    }
}

/// From the leftmost to the rightmost text of each column.
void ColumnRooms::takeTexts(const TableGrid& grid, const std::vector<std::vector<Line>>& linesOfCell) {
    for (std::size_t i = 0; i + 1 < grid.columnEdges.size(); ++i)
        m_columns.push_back({grid.columnEdges[i + 1], grid.columnEdges[i]});
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        ColumnSpan& column = m_columns[static_cast<std::size_t>(grid.cells[i].column)];
        if (grid.cells[i].columnSpan > 1)
            continue;
        for (const Line& line : linesOfCell[i]) {
            column.left = std::min(column.left, line.box.left);
            column.right = std::max(column.right, line.box.right);
        }
    }
}

} // namespace orvane::layout
