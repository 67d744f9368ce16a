#pragma once

#include "layout/running/EdgeRows.h"

#include <vector>

namespace orvane::layout {

/// Gives rows back to the text that stand where as many other pages have their text: the heads of tables and of
/// chapters repeat on pages too, but below the margin. `edges` holds one edge of all pages.
void leaveTextPlaces(std::vector<EdgeRows>& edges, const RunningParameters::RunningHeads& parameters);

/// Takes rows that say something else than those of other pages, but stand in the place of their heads, outside the
/// text: a first page often has a head of its own.
void takeOwnHeads(std::vector<EdgeRows>& edges, const RunningParameters::RunningHeads& parameters);

/// Where the text of the page starts, seen from the edge; infinite when nothing is near.
double textStart(const EdgeRows& edge);

/// Lets go of the last `taken` rows down to `count`, and of those before that agree with no other page.
void trimTaken(EdgeRows& edge, std::size_t count);

} // namespace orvane::layout
