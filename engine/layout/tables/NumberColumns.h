#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TextPiece.h"

namespace orvane::layout {

/// Parts the drawn columns of a grid in which numbers stand side by side in several rows: only some of the columns are
/// drawn. A cell with one text stays whole, as the head of the columns that its own was parted into.
/// Requires: the grid is tiled.
TableGrid partAtNumbers(const TableGrid& grid, const std::vector<Line>& lines,
                        const TableParameters::Tables& parameters);

} // namespace orvane::layout
