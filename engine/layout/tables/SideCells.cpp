#include "layout/tables/SideCells.h"

#include "layout/support/BoxIndex.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace orvane::layout {
namespace {

/// Finds grounds that meet, and puts those with the same sides below each other.
class SideColumnFinder {
public:
    SideColumnFinder(const std::vector<Ground>& grounds, const TableParameters::Tables& parameters)
        : m_parameters(parameters)
        , m_index(parameters.stripeStep) {
        for (const Ground& ground : grounds)
            if (!ground.isUsed && ground.box.width() > parameters.filledSnap &&
                ground.box.height() > parameters.minimumCellSide)
                m_boxes.push_back(ground.box);
        // Those of one column follow each other, and what was painted twice lies side by side.
        std::sort(m_boxes.begin(), m_boxes.end(), [](const Rect& a, const Rect& b) {
            return std::tuple(std::lround(a.left), std::lround(a.right), a.top, a.bottom) <
                   std::tuple(std::lround(b.left), std::lround(b.right), b.top, b.bottom);
        });
        m_boxes.erase(
            std::unique(m_boxes.begin(), m_boxes.end(), [&](const Rect& a, const Rect& b) { return isSame(a, b); }),
            m_boxes.end());
        for (std::size_t i = 0; i < m_boxes.size(); ++i)
            m_index.add(m_boxes[i], i);
    }

    std::vector<SideColumn> find() const {
        std::vector<SideColumn> columns;
        for (const Rect& box : m_boxes) {
            const bool goesOn = !columns.empty() && isNear(columns.back().back().box.left, box.left) &&
                                isNear(columns.back().back().box.right, box.right) &&
                                isNear(columns.back().back().box.bottom, box.top);
            if (!goesOn)
                columns.emplace_back();
            columns.back().push_back({box, headOf(box)});
        }
        return columns;
    }

private:
    bool isNear(double a, double b) const { return std::abs(a - b) <= m_parameters.filledSnap; }

    bool isSame(const Rect& a, const Rect& b) const {
        return isNear(a.left, b.left) && isNear(a.right, b.right) && isNear(a.top, b.top) && isNear(a.bottom, b.bottom);
    }

    std::optional<Rect> headOf(const Rect& side) const {
        std::optional<Rect> head;
        const Rect corner = Rect{side.right, side.top, side.right, side.top}.inflated(m_parameters.filledSnap);
        m_index.visit(corner, [&](std::size_t i) {
            const Rect& box = m_boxes[i];
            if (isNear(box.left, side.right) && isNear(box.top, side.top) &&
                box.bottom < side.bottom - m_parameters.minimumCellSide && box.width() > side.width())
                head = box;
        });
        return head;
    }

    const TableParameters::Tables& m_parameters;
    std::vector<Rect> m_boxes;
    BoxIndex m_index;
};

} // namespace

std::vector<SideColumn> findSideColumns(const std::vector<Ground>& grounds, const TableParameters::Tables& parameters) {
    return SideColumnFinder(grounds, parameters).find();
}

} // namespace orvane::layout
