#include "layout/tables/FilledCells.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace orvane::layout {

FilledCells::FilledCells(const std::vector<Ground>& grounds, const TableParameters::Tables& parameters)
    : m_parameters(parameters) {
    Bands lefts;
    Bands rights;
    for (std::size_t i = 0; i < grounds.size(); ++i) {
        const long band = std::lround(grounds[i].box.top);
        lefts[band].emplace(grounds[i].box.left, i);
        rights[band].emplace(grounds[i].box.right, i);
    }
    for (const Ground& ground : grounds)
        if (hasNeighbour(ground.box, ground.box.right, lefts, grounds) ||
            hasNeighbour(ground.box, ground.box.left, rights, grounds))
            m_cells.push_back(ground.box);
}

/// Whether a ground as high as `box` has the edge that `bands` are sorted by at its `side`.
bool FilledCells::hasNeighbour(const Rect& box, double side, const Bands& bands,
                               const std::vector<Ground>& grounds) const {
    const double snap = m_parameters.filledSnap;
    const long band = std::lround(box.top);
    for (auto it = bands.lower_bound(band - 1); it != bands.end() && it->first <= band + 1; ++it) {
        const auto first = it->second.lower_bound(side - snap);
        const auto last = it->second.upper_bound(side + snap);
        const bool isFound = std::any_of(first, last, [&](const auto& edge) {
            const Rect& other = grounds[edge.second].box;
            return other.width() > snap && std::abs(other.top - box.top) <= snap &&
                   std::abs(other.bottom - box.bottom) <= snap;
        });
        if (isFound)
            return true;
    }
    return false;
}

int FilledCells::cellAt(const Rect& box) const {
    const auto cell = std::find_if(m_cells.begin(), m_cells.end(), [&](const Rect& other) {
        return other.contains(Point{box.centerX(), box.centerY()});
    });
    return cell == m_cells.end() ? kNone : static_cast<int>(cell - m_cells.begin());
}

bool FilledCells::meetBetween(const Rect& left, const Rect& right) const {
    const double room = m_parameters.filledRoom;
    const auto endsBetween = [&](const Rect& cell) {
        return cell.top < left.centerY() && cell.bottom > left.centerY() && cell.right >= left.right + room &&
               cell.right <= right.left - room && cell.left <= left.left;
    };
    return std::any_of(m_cells.begin(), m_cells.end(), endsBetween);
}

} // namespace orvane::layout
