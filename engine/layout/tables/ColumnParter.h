#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Parts the cells over several columns whose texts keep to these columns: tables that draw the rules between columns
/// in the head only.
/// Requires: the grid is tiled.
TableGrid partAtColumns(const TableGrid& grid, const std::vector<Line>& lines,
                        const TableParameters::Tables& parameters);

} // namespace orvane::layout
