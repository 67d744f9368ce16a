#pragma once

#include "layout/LayoutParameters.h"
#include "layout/page/PageLayout.h"
#include "layout/tables/BorderLines.h"

#include <vector>

namespace orvane::layout {

/// Sets the borders of every cell from the lines along its sides, and marks the rules as used.
void drawBorders(TableDraft& table, std::vector<Rule>& rules, const std::vector<BorderLine>& lines,
                 const LayoutParameters::Tables& parameters);

/// Sets the shading of every cell from the grounds beneath it, and marks the grounds as used.
void shadeCells(TableDraft& table, std::vector<Ground>& grounds, const LayoutParameters::Tables& parameters);

} // namespace orvane::layout
