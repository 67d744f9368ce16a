#pragma once

#include "layout/tables/TableGrid.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Joins drawn grids that stand beside each other on the same rows with nothing but a narrow space between: they are parts of
/// one table whose column between them shows no borders. A word processor would set tables one below the other.
std::vector<TableGrid> joinBeside(std::vector<TableGrid> grids, const std::vector<Line>& lines);

} // namespace orvane::layout
