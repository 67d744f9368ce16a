#pragma once

#include "base/Geometry.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// Groups the boxes on a page that touch or nearly touch, however many there are: the page is cut into cells, boxes in
/// neighbouring cells belong together. The work is in proportion to cells and boxes.
class CellComponents {
public:
    static constexpr int kNone = -1;

    /// Units: points. `cellSize` is also how far apart things of one group may be.
    CellComponents(double width, double height, double cellSize);

    void add(const Rect& box);
    /// To be called once, after all boxes were added.
    void connect();
    /// The group of the thing at `p`; kNone where nothing is. Groups are numbered from 0.
    int componentAt(Point p) const { return m_component[cellAt(p)]; }
    std::size_t count() const { return m_count; }

private:
    std::size_t columnOf(double x) const;
    std::size_t rowOf(double y) const;
    std::size_t cellAt(Point p) const { return rowOf(p.y) * m_columns + columnOf(p.x); }
    void fill(std::size_t seed, int component);

    double m_cell;
    std::size_t m_columns;
    std::size_t m_rows;
    std::vector<int> m_change; ///< two-dimensional differences; their sums say how many boxes cover a cell
    std::vector<int> m_component;
    std::size_t m_count = 0;
};

} // namespace orvane::layout
