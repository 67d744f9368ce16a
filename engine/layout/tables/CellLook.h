#pragma once

#include "layout/page/PageLayout.h"
#include "layout/tables/BorderLines.h"
#include "layout/tables/ColumnRooms.h"
#include "layout/tables/TableParameters.h"

#include <vector>

namespace orvane::layout {

/// Sets the borders of every cell from the lines along its sides, and marks the rules as used.
void drawBorders(TableDraft& table, TableEdges edges, std::vector<Rule>& rules, const std::vector<BorderLine>& lines,
                 const TableParameters::Tables& parameters);

/// Sets the shading of every cell from the grounds beneath it, and marks the grounds as used.
void shadeCells(TableDraft& table, std::vector<Ground>& grounds, const TableParameters::Tables& parameters);

} // namespace orvane::layout
