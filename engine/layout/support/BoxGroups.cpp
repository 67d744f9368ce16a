#include "layout/support/BoxGroups.h"

#include "layout/support/BoxIndex.h"
#include "layout/support/DisjointSets.h"

#include <algorithm>
#include <numeric>

namespace orvane::layout {
namespace {

/// The boxes by their size, large ones first.
std::vector<std::size_t> bySize(const std::vector<Rect>& boxes) {
    std::vector<std::size_t> order(boxes.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return boxes[a].area() > boxes[b].area(); });
    return order;
}

} // namespace

std::vector<std::vector<std::size_t>> BoxGroups::groups() const {
    constexpr double kSlice = 16;
    BoxIndex index(kSlice);
    DisjointSets sets(m_boxes.size());
    for (const std::size_t i : bySize(m_boxes)) {
        // What comes near a box within another comes near that one, too.
        const bool isWithin = index.anyOf(m_boxes[i].inflated(m_gap), [&](std::size_t other) {
            sets.unite(i, other);
            return m_boxes[other].contains(m_boxes[i]);
        });
        if (!isWithin)
            index.add(m_boxes[i], i);
    }
    return sets.groups();
}

} // namespace orvane::layout
