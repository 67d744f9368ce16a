#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TextPiece.h"

#include <vector>

namespace orvane::layout {

/// Whether the drawn rows of a grid hold the rows of a table line by line: wherever one has several lines, these stand
/// side by side in two columns at least, and are none that were broken at the cells' sides.
/// `pieces` are those of each cell, by index into TableGrid::cells.
/// Requires: the grid is tiled.
bool areLinesPaired(const TableGrid& grid, const std::vector<std::vector<TextPiece>>& pieces,
                    const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
