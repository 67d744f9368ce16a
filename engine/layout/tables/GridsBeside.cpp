#include "layout/tables/GridsBeside.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace orvane::layout {
namespace {

constexpr double kHair = 0.1; // points

/// Row edges in whole points.
std::vector<long> rowsOf(const TableGrid& grid) {
    std::vector<long> rows;
    for (const double edge : grid.rowEdges)
        rows.push_back(std::lround(edge));
    return rows;
}

bool isEmpty(const Rect& space, const std::vector<TableGrid>& grids, const std::vector<Line>& lines) {
    return std::none_of(grids.begin(), grids.end(),
                        [&](const TableGrid& grid) { return grid.box().intersects(space); }) &&
           std::none_of(lines.begin(), lines.end(), [&](const Line& line) { return line.box.intersects(space); });
}

/// Whether nothing but a narrow space is between the two.
bool isPartOf(const TableGrid& left, const TableGrid& right, const std::vector<TableGrid>& grids,
              const std::vector<Line>& lines) {
    constexpr double kWidestSpace = 0.35; // of the width of the narrower one
    const Rect space{left.box().right, right.box().top, right.box().left, right.box().bottom};
    return space.width() > 2 * kHair &&
           space.width() <= kWidestSpace * std::min(left.box().width(), right.box().width()) &&
           isEmpty(space.inflated(-kHair), grids, lines);
}

/// Adds the grid at the right, behind a column of empty cells.
void append(TableGrid& grid, const TableGrid& right) {
    const int between = grid.columns();
    for (int row = 0; row < grid.rows(); ++row)
        grid.cells.push_back({row, between, 1, 1});
    for (GridCell cell : right.cells) {
        cell.column += between + 1;
        grid.cells.push_back(cell);
    }
    grid.columnEdges.insert(grid.columnEdges.end(), right.columnEdges.begin(), right.columnEdges.end());
    sortCells(grid.cells);
}

} // namespace

std::vector<TableGrid> joinBeside(std::vector<TableGrid> grids, const std::vector<Line>& lines) {
    constexpr int kFewestRows = 2;
    std::map<std::vector<long>, std::vector<std::size_t>> onSameRows;
    for (std::size_t i = 0; i < grids.size(); ++i)
        if (grids[i].rows() >= kFewestRows)
            onSameRows[rowsOf(grids[i])].push_back(i);
    std::vector<bool> isJoined(grids.size(), false);
    for (auto& [rows, beside] : onSameRows) {
        std::sort(beside.begin(), beside.end(),
                  [&](std::size_t a, std::size_t b) { return grids[a].box().left < grids[b].box().left; });
        TableGrid* last = nullptr;
        for (const std::size_t i : beside) {
            isJoined[i] = last && isPartOf(*last, grids[i], grids, lines);
            if (isJoined[i])
                append(*last, grids[i]);
            else
                last = &grids[i];
        }
    }
    std::size_t index = 0;
    std::erase_if(grids, [&](const TableGrid&) { return isJoined[index++]; });
    return grids;
}

} // namespace orvane::layout
