#pragma once

#include "layout/tables/TableGrid.h"

#include <vector>

namespace orvane::layout {

/// The grid with further edges within its rows: `edges[row]` are their y, ascending. The cells of which `isParted` says
/// so, by index into TableGrid::cells, are parted there; the others span what their rows become.
TableGrid partRows(const TableGrid& grid, const std::vector<std::vector<double>>& edges,
                   const std::vector<char>& isParted);

} // namespace orvane::layout
