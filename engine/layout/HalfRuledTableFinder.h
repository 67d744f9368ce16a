#pragma once

#include "layout/BorderLines.h"
#include "layout/LayoutParameters.h"
#include "layout/PageText.h"
#include "layout/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// The grids of tables that have rules between their rows only: the words' own columns complete them.
std::vector<TableGrid> findHalfRuledGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                          const LayoutParameters& parameters);

} // namespace orvane::layout
