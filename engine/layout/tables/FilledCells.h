#pragma once

#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <map>
#include <vector>

namespace orvane::layout {

/// The cells that a page's grounds show: grounds of one height side by side that meet. What stands in one of them is
/// one cell, and where two meet, two cells do.
class FilledCells {
public:
    static constexpr int kNone = -1;

    FilledCells(const std::vector<Ground>& grounds, const TableParameters::Tables& parameters);

    /// Number of the cell that holds the middle of `box`, or kNone.
    int cellAt(const Rect& box) const;
    /// Whether two cells meet between two words on one line, with room on both sides: highlights end at their words.
    bool meetBetween(const Rect& left, const Rect& right) const;

private:
    /// Grounds by their upper edge, then by their left or right one.
    using Bands = std::map<long, std::multimap<double, std::size_t>>;

    bool hasNeighbour(const Rect& box, double side, const Bands& bands, const std::vector<Ground>& grounds) const;

    const TableParameters::Tables& m_parameters;
    std::vector<Rect> m_cells;
};

} // namespace orvane::layout
