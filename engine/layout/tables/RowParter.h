#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Parts the drawn rows in which several cells list numbers, or the lines of all cells stand side by side: tables that
/// draw rules around groups of rows only. A cell that does not follow the lines of numbers spans them.
/// Requires: the grid is tiled.
TableGrid partAtTextRows(const TableGrid& grid, const std::vector<Line>& lines,
                         const TableParameters::Tables& parameters);

} // namespace orvane::layout
