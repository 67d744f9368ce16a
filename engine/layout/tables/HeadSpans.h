#pragma once

#include "layout/tables/AlignedGrid.h"
#include "layout/tables/BorderLines.h"

namespace orvane::layout {

/// Widens the cells of heads over the empty places beside them whose columns they head: where a rule below a head spans
/// these columns, or the head stands in the middle over them. A head may be shorter than the space between two columns,
/// so its own extent tells little. `grid` is that of `aligned`.
TableGrid spanHeads(TableGrid grid, const AlignedRows& aligned, const std::vector<Line>& lines,
                    const std::vector<BorderLine>& rules, const TableParameters::Tables& parameters);

} // namespace orvane::layout
