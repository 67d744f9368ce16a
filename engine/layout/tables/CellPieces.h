#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TextPiece.h"

#include <vector>

namespace orvane::layout {

/// The pieces of text in each cell, by index into TableGrid::cells. Words belong to the cell that holds their middle.
/// Requires: the grid is tiled.
std::vector<std::vector<TextPiece>> piecesByCell(const std::vector<Line>& lines, const TableGrid& grid,
                                                 const TableParameters::Tables& parameters);

} // namespace orvane::layout
