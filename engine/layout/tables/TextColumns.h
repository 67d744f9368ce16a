#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Parts the cells in which texts of several lines stand side by side: each of these goes on below itself, in lower
/// case or in the middle of its own column, and none in the next one. The cells above and below are parted there, too,
/// where their texts keep to the same columns.
/// Requires: the grid is tiled.
TableGrid partAtTexts(const TableGrid& grid, const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
