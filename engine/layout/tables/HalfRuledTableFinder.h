#pragma once

#include "layout/LayoutParameters.h"
#include "layout/tables/BorderLines.h"
#include "layout/tables/TableGrid.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The grids of tables that have rules between their rows only: the words' own columns complete them.
std::vector<TableGrid> findHalfRuledGrids(const PageText& page, const std::vector<BorderLine>& rules,
                                          const LayoutParameters& parameters);

} // namespace orvane::layout
