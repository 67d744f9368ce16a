#pragma once

#include "layout/LayoutParameters.h"
#include "layout/tables/TableGrid.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The grids of tables without rules: rows of short texts whose columns stay clear of each other and keep their edges.
std::vector<TableGrid> findBorderlessGrids(const PageText& page, const LayoutParameters& parameters);

} // namespace orvane::layout
