#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Parts the drawn rows within which grounds from side to side end between texts: a filled head without a rule below.
/// Cells that span drawn rows stay whole.
/// Requires: the grid is tiled.
TableGrid partAtGrounds(const TableGrid& grid, const PageText& page, const TableParameters::Tables& parameters);

} // namespace orvane::layout
