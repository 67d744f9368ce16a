#pragma once

#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Marks the rules that draw check boxes: small squares that stand alone. They are part of what stands in a cell, and
/// would part it if they were taken for lines of the grid, the more so where a box touches the rule of its row.
std::vector<char> markCheckBoxes(const std::vector<Rule>& rules, const TableParameters::Tables& parameters);

} // namespace orvane::layout
