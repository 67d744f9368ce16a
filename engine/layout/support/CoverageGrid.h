#pragma once

#include "base/Geometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace orvane::layout {

/// Which cells of a page are covered, to ask "is there something here" in constant time.
class CoverageGrid {
public:
    /// Units: points; cells grow on large pages, so that their number stays bounded.
    CoverageGrid(double width, double height, double cellSize)
        : m_cell(std::max({cellSize, width / kMaximumCells, height / kMaximumCells}))
        , m_columns(cellCount(width))
        , m_rows(cellCount(height))
        , m_isCovered(m_columns * m_rows) {}

    /// Covers the cells whose middle lies in `box`, at least the one of the box's own middle.
    void cover(const Rect& box) {
        forEachCell(box, [this](std::size_t cell) { m_isCovered[cell] = true; });
    }
    bool isCovered(Point p) const { return m_isCovered[rowOf(p.y) * m_columns + columnOf(p.x)]; }
    /// The share of the cells in `box` that are covered.
    double coveredShare(const Rect& box) const {
        std::size_t all = 0, covered = 0;
        forEachCell(box, [&](std::size_t cell) {
            ++all;
            covered += m_isCovered[cell];
        });
        return static_cast<double>(covered) / static_cast<double>(all);
    }

private:
    static constexpr double kMaximumCells = 400; ///< in each direction

    template<typename Visit>
    void forEachCell(const Rect& box, Visit visit) const {
        const std::size_t left = columnOf(box.left + m_cell / 2), right = columnOf(box.right - m_cell / 2);
        const std::size_t top = rowOf(box.top + m_cell / 2), bottom = rowOf(box.bottom - m_cell / 2);
        if (left > right || top > bottom) {
            visit(rowOf(box.centerY()) * m_columns + columnOf(box.centerX()));
            return;
        }
        for (std::size_t row = top; row <= bottom; ++row)
            for (std::size_t column = left; column <= right; ++column)
                visit(row * m_columns + column);
    }
    std::size_t cellCount(double length) const {
        return static_cast<std::size_t>(std::clamp(std::ceil(length / m_cell), 1.0, kMaximumCells));
    }
    static std::size_t clampedIndex(double index, std::size_t count) {
        return static_cast<std::size_t>(std::clamp(index, 0.0, static_cast<double>(count - 1)));
    }
    std::size_t columnOf(double x) const { return clampedIndex(std::floor(x / m_cell), m_columns); }
    std::size_t rowOf(double y) const { return clampedIndex(std::floor(y / m_cell), m_rows); }

    double m_cell;
    std::size_t m_columns;
    std::size_t m_rows;
    std::vector<bool> m_isCovered;
};

} // namespace orvane::layout
