#include "layout/tables/TableGrid.h"

#include <algorithm>

namespace orvane::layout {

void sortCells(std::vector<GridCell>& cells) {
    std::sort(cells.begin(), cells.end(), [](const GridCell& a, const GridCell& b) {
        return a.row != b.row ? a.row < b.row : a.column < b.column;
    });
}

bool overlapsAny(const TableGrid& grid, const std::vector<TableGrid>& others) {
    return std::any_of(others.begin(), others.end(),
                       [&](const TableGrid& other) { return other.box().intersects(grid.box()); });
}

std::vector<int> coverOf(const TableGrid& grid) {
    const int columns = grid.columns();
    std::vector<int> cover(static_cast<std::size_t>(columns) * static_cast<std::size_t>(grid.rows()), -1);
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        const GridCell& cell = grid.cells[i];
        for (int row = cell.row; row < cell.row + cell.rowSpan; ++row)
            for (int column = cell.column; column < cell.column + cell.columnSpan; ++column)
                cover[static_cast<std::size_t>(row * columns + column)] = static_cast<int>(i);
    }
    return cover;
}

bool tilesGrid(const TableGrid& grid) {
    if (grid.columns() < 1 || grid.rows() < 1)
        return false;
    long covered = 0;
    for (const GridCell& cell : grid.cells) {
        if (cell.row < 0 || cell.column < 0 || cell.rowSpan < 1 || cell.columnSpan < 1)
            return false;
        if (cell.row + cell.rowSpan > grid.rows() || cell.column + cell.columnSpan > grid.columns())
            return false;
        covered += static_cast<long>(cell.rowSpan) * cell.columnSpan;
    }
    // As many places as the cells claim, and none left open: then no place is claimed twice.
    const std::vector<int> cover = coverOf(grid);
    return covered == static_cast<long>(cover.size()) && std::find(cover.begin(), cover.end(), -1) == cover.end();
}

int intervalAt(const std::vector<double>& edges, double value) {
    const auto after = std::upper_bound(edges.begin(), edges.end(), value);
    if (after == edges.begin() || after == edges.end())
        return -1;
    return static_cast<int>(after - edges.begin()) - 1;
}

} // namespace orvane::layout
