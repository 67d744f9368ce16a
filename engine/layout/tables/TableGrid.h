#pragma once

#include "base/Geometry.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// The place of one cell in its grid.
struct GridCell {
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;

    bool operator==(const GridCell&) const = default;
};

/// Rows and columns and the cells that tile them.
struct TableGrid {
    std::vector<double> columnEdges; ///< x, ascending; one more than there are columns
    std::vector<double> rowEdges;    ///< y, ascending; one more than there are rows
    std::vector<GridCell> cells;     ///< by row, then column

    int columns() const { return static_cast<int>(columnEdges.size()) - 1; }
    int rows() const { return static_cast<int>(rowEdges.size()) - 1; }
    Rect box() const { return {columnEdges.front(), rowEdges.front(), columnEdges.back(), rowEdges.back()}; }
    Rect boxOf(const GridCell& cell) const {
        const auto edge = [](const std::vector<double>& edges, int at) { return edges[static_cast<std::size_t>(at)]; };
        return {edge(columnEdges, cell.column), edge(rowEdges, cell.row),
                edge(columnEdges, cell.column + cell.columnSpan), edge(rowEdges, cell.row + cell.rowSpan)};
    }
};

/// Puts the cells in the order of TableGrid::cells.
void sortCells(std::vector<GridCell>& cells);

/// Whether the grid lies over one of the others.
bool overlapsAny(const TableGrid& grid, const std::vector<TableGrid>& others);

/// What the lines of a drawn grid tell about it.
struct GridEvidence {
    int forcedCells = 0;   ///< that had to be cut out of a shape that is no rectangle
    bool isClosed = false; ///< all sides of all its cells are drawn
};

/// Which cell covers each place of the grid, row by row; -1 for a hole. A place that two cells claim belongs to the
/// later one.
std::vector<int> coverOf(const TableGrid& grid);

/// Whether the cells cover the grid without hole or overlap.
bool tilesGrid(const TableGrid& grid);

/// The index of the interval between two ascending `edges` that holds `value`; -1 when it lies outside.
int intervalAt(const std::vector<double>& edges, double value);

} // namespace orvane::layout
