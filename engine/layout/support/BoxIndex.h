#pragma once

#include "base/Geometry.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace orvane::layout {

/// Finds the boxes near a box: a table of horizontal slices of the page. Boxes are named by numbers of the caller's.
class BoxIndex {
public:
    /// Units: points; slices of the height of a line of text are right.
    explicit BoxIndex(double step)
        : m_step(step) {}

    void add(const Rect& box, std::size_t name) {
        // A box over more slices than this is kept in a list of its own, so that adding stays cheap.
        if (sliceOf(box.bottom) - sliceOf(box.top) > kMostSlices) {
            m_tall.emplace_back(box, name);
            return;
        }
        for (long slice = sliceOf(box.top); slice <= sliceOf(box.bottom); ++slice)
            m_slices[slice].emplace_back(box, name);
    }

    /// Calls visit(name) for each box that touches `box`, once each.
    template<typename Visit>
    void visit(const Rect& box, Visit visit) const {
        anyOf(box, [&](std::size_t name) {
            visit(name);
            return false;
        });
    }

    /// Whether the predicate holds for the name of a box that touches `box`; asks for no more behind one for which it
    /// does.
    template<typename Predicate>
    bool anyOf(const Rect& box, Predicate predicate) const {
        const long first = sliceOf(box.top), last = sliceOf(box.bottom);
        for (long slice = first; slice <= last; ++slice) {
            const auto found = m_slices.find(slice);
            if (found == m_slices.end())
                continue;
            for (const auto& [other, name] : found->second)
                if (slice == std::max(first, sliceOf(other.top)) && touches(box, other) && predicate(name))
                    return true;
        }
        for (const auto& [other, name] : m_tall)
            if (touches(box, other) && predicate(name))
                return true;
        return false;
    }

private:
    static constexpr long kMostSlices = 64;

    static bool touches(const Rect& a, const Rect& b) {
        return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
    }
    long sliceOf(double y) const { return std::lround(std::clamp(y / m_step, -1e9, 1e9)); }

    double m_step;
    std::unordered_map<long, std::vector<std::pair<Rect, std::size_t>>> m_slices;
    std::vector<std::pair<Rect, std::size_t>> m_tall;
};

} // namespace orvane::layout
