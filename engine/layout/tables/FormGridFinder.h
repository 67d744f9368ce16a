#pragma once

#include "layout/tables/BorderLines.h"
#include "layout/tables/TableGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The grids of forms: boxes to fill in that stand in rows with their labels beside them, though nothing is drawn
/// around the labels. A box is a cell, and so is the text before it; what stands between the rows leads across.
std::vector<TableGrid> findFormGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                     const TableParameters::Tables& parameters);

} // namespace orvane::layout
