#pragma once

#include "layout/tables/RuleLattice.h"
#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Takes the grids within cells out of a grid whose lines are so near to theirs that both were drawn as one lattice: on
/// both sides of such a grid lies a strip without text, too narrow for any. The cell around it becomes one again.
std::vector<TableGrid> takeNestedGrids(LatticeGrid& found, const RuleLattice& lattice, const std::vector<Line>& lines,
                                       const TableParameters::Tables& parameters);

} // namespace orvane::layout
