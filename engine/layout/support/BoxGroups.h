#pragma once

#include "base/Geometry.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// Groups boxes that lie close together, directly or over others.
class BoxGroups {
public:
    /// Units: points; boxes at most `gap` apart belong together.
    explicit BoxGroups(double gap)
        : m_gap(gap) {}

    void add(const Rect& box) { m_boxes.push_back(box); }

    /// The groups, as indices in the order of adding; each group and the list of groups ascend.
    /// The work is n log n unless many boxes lie over each other from left to right.
    std::vector<std::vector<std::size_t>> groups() const;

private:
    double m_gap;
    std::vector<Rect> m_boxes;
};

} // namespace orvane::layout
