#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

#include <span>

namespace orvane::layout {

/// The edges between which a column's text is set. Lines that stick out on their own do not move them, nor does a full
/// stop that East Asian text lets hang beyond the edge.
/// Requires: at least one line.
ColumnSpan findColumnEdges(std::span<const Line> lines, const PageParameters::Regions& parameters);

/// Gives a page's only column as much room at the right as at the left where lines in the middle of the page alone
/// reach farthest: they end at no edge.
ColumnSpan evenedAtMiddle(ColumnSpan span, std::span<const Line> lines, double pageWidth,
                          const PageParameters::Regions& parameters);

/// The line's right edge, without East Asian punctuation that may hang beyond the column.
double rightEdgeOf(const Line& line);

} // namespace orvane::layout
