#pragma once

#include "layout/page/ColumnGutter.h"
#include "layout/page/PageParameters.h"

#include <optional>
#include <span>

namespace orvane::layout {

/// Lengthens the gutter over lines of one side that belong to its columns though nothing stands beside them: a column
/// may start higher or end lower than its neighbour. They follow on the gutter's first or last row without a break, or
/// after a blank that parts paragraphs if they fill the column as its other lines do. Requires: `lines` from top to
/// bottom.
void extendOverNeighbours(ColumnGutter& gutter, std::span<const Line> lines, const PageParameters::Regions& parameters);

/// Where the text of the columns begins below blocks that stand centred over each of them, set off by a blank across:
/// the names and addresses of authors, which are read before the first column. Nothing where there are no such blocks.
/// Requires: `lines` from top to bottom.
std::optional<double> findEndOfHeads(const ColumnGutter& gutter, std::span<const Line> lines,
                                     const PageParameters::Regions& parameters);

} // namespace orvane::layout
