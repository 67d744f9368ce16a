#pragma once

#include "layout/tables/ColumnGaps.h"

namespace orvane::layout {

/// One range for each head of a row, from its choices, so that they do not overlap and cover most columns; nothing when
/// they overlap in any case. `choices` go from left to right.
std::vector<ColumnRange> widestRanges(const std::vector<std::vector<ColumnRange>>& choices);

} // namespace orvane::layout
