#pragma once

#include "layout/tables/TableGrid.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// The distinct positions among `values`, ascending: those nearer than `snap` to the first of some are one, at their
/// mean.
std::vector<double> clusterPositions(std::vector<double> values, double snap);

/// Of the ascending `positions` the one nearest to `value`. Requires: there is one.
std::size_t nearestIndex(const std::vector<double>& positions, double value);

/// Cells that tile a grid.
struct CutCells {
    std::vector<GridCell> cells; ///< by row, then column
    int forced = 0;              ///< of them, those cut out of a shape that is no rectangle
};

/// The places of a grid that have one owner, as cells: a rectangle is one, of any other shape the rows of equal extent
/// are. `ownerOfPlace` by row, then column; owners are numbers of the caller's.
CutCells cutIntoCells(const std::vector<std::size_t>& ownerOfPlace, std::size_t columns);

} // namespace orvane::layout
