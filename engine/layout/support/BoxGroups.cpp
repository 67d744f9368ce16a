#include "layout/support/BoxGroups.h"

#include "layout/support/BoxIndex.h"
#include "layout/support/DisjointSets.h"

namespace orvane::layout {
std::vector<std::vector<std::size_t>> BoxGroups::groups() const {
    constexpr double kSlice = 16;
    BoxIndex index(kSlice);
    DisjointSets sets(m_boxes.size());
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        index.visit(m_boxes[i].inflated(m_gap), [&](std::size_t other) { sets.unite(i, other); });
        index.add(m_boxes[i], i);
    }
    return sets.groups();
}

} // namespace orvane::layout
