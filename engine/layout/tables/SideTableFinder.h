#pragma once

#include "layout/LayoutParameters.h"
#include "layout/tables/TableGrid.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The grids of tables whose only filled cells, the head aside, stand at the left: each beside one row or more of
/// texts, which may keep to columns, and with or without a filled head to the right of it.
std::vector<TableGrid> findSideGrids(const PageText& page, const LayoutParameters& parameters);

} // namespace orvane::layout
