#pragma once

#include "layout/tables/BorderLines.h"
#include "layout/tables/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// Finds tables whose cells are told apart by their grounds, with the rules left.
std::vector<TableGrid> findGroundGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                       const TableParameters::Tables& parameters);

} // namespace orvane::layout
