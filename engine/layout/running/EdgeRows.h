#pragma once

#include "layout/running/RunningRow.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// The rows of one page at one edge, and how many of them are a running head.
struct EdgeRows {
    std::vector<RunningRow> rows;  ///< from the edge inwards
    std::vector<RowMatch> matches; ///< how well each agrees with a row of a page nearby
    std::size_t taken = 0;         ///< so many rows are the running head
};

/// Compares the rows at one edge of each page with those of the two pages before and the two after.
std::vector<EdgeRows> readEdgeRows(const std::vector<PageText>& pages, PageEdge edge,
                                   const RunningParameters::RunningHeads& parameters);

/// Makes the outermost `count` rows the running head: they stand by themselves, like no row of another page.
void takeRows(EdgeRows& edge, std::size_t count);

/// How far apart the pages are whose heads are compared: odd and even pages may differ.
inline constexpr std::ptrdiff_t kRunningReach = 2;

} // namespace orvane::layout
