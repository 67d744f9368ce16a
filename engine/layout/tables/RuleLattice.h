#pragma once

#include "layout/tables/BorderLines.h"
#include "layout/tables/TableGrid.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// Border lines that touch or cross each other, as indices.
using LineGroup = std::vector<std::size_t>;

/// Sorts the lines into groups that hang together. Lines that meet nothing are left out.
std::vector<LineGroup> groupCrossingLines(const std::vector<BorderLine>& lines,
                                          const TableParameters::Tables& parameters);

/// The rows and columns that a group of lines draws, and which sides of their places are drawn.
struct RuleLattice {
    std::vector<double> xs;
    std::vector<double> ys;
    std::vector<char> horizontal; ///< row edge by row edge: is it drawn above place `column`
    std::vector<char> vertical;   ///< row by row: is column edge `x` drawn there

    std::size_t columns() const { return xs.size() - 1; }
    std::size_t rows() const { return ys.size() - 1; }
    bool isDrawnAbove(std::size_t row, std::size_t column) const { return horizontal[row * columns() + column] != 0; }
    bool isDrawnLeftOf(std::size_t row, std::size_t column) const { return vertical[row * xs.size() + column] != 0; }
};

/// Lays the lattice of a group; nothing when the lines make no place, or far more than a table has.
std::optional<RuleLattice> buildLattice(const std::vector<BorderLine>& lines, const LineGroup& group,
                                        const TableParameters::Tables& parameters);

/// A grid and how well its lines told it.
struct LatticeGrid {
    TableGrid grid;
    GridEvidence evidence;
};

/// The cells of a lattice: places without a drawn side between them are one cell.
LatticeGrid gridOf(const RuleLattice& lattice);

/// Whether all four sides of a cell of the lattice's grid are drawn.
bool isClosed(const RuleLattice& lattice, const GridCell& cell);

} // namespace orvane::layout
