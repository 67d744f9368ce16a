#pragma once

#include "layout/page/PageLayout.h"
#include "layout/tables/BorderLines.h"
#include "layout/tables/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// Finds tables whose cells are told apart by their grounds, among the text that `found` left, with the rules left.
std::vector<TableGrid> findGroundGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                       const std::vector<TableDraft>& found, const TableParameters::Tables& parameters);

} // namespace orvane::layout
