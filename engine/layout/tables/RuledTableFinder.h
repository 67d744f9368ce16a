#pragma once

#include "layout/tables/BorderLines.h"
#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The grids on a page that its rules draw and that are tables.
std::vector<TableGrid> findRuledGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                      const TableParameters::Tables& parameters);

} // namespace orvane::layout
