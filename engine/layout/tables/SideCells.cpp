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
            columns.back().push_back({box, headOf(box), std::nullopt});
        }
        for (SideColumn& column : columns)
            addHeadRow(column);
        return columns;
    }

private:
    bool isNear(double a, double b) const { return std::abs(a - b) <= m_parameters.filledSnap; }

    bool isSame(const Rect& a, const Rect& b) const {
        return isNear(a.left, b.left) && isNear(a.right, b.right) && isNear(a.top, b.top) && isNear(a.bottom, b.bottom);
    }

    /// The first ground at a corner for which `isSought` holds.
    template<typename Predicate>
    std::optional<Rect> groundAt(Point corner, const Predicate& isSought) const {
        std::optional<Rect> found;
        m_index.visit(Rect{corner.x, corner.y, corner.x, corner.y}.inflated(m_parameters.filledSnap),
                      [&](std::size_t i) {
                          if (!found && isSought(m_boxes[i]))
                              found = m_boxes[i];
                      });
        return found;
    }

    /// The head that is filled cell by cell begins with the first cell; one that is filled as a whole lies above it.
    void addHeadRow(SideColumn& column) const {
        SideCell& first = column.front();
        Rect row = first.box;
        while (const auto next = groundAt({row.right, row.top}, [&](const Rect& box) {
                   return isNear(box.left, row.right) && isNear(box.top, row.top) && isNear(box.bottom, row.bottom);
               }))
            row.right = next->right;
        if (row.right > first.box.right) {
            first.row = row;
            return;
        }
        const Rect& below = first.box;
        const auto above = groundAt({below.left, below.top}, [&](const Rect& box) {
            return isNear(box.left, below.left) && isNear(box.bottom, below.top) &&
                   box.right > below.right + m_parameters.filledSnap;
        });
        if (above)
            column.insert(column.begin(), {{below.left, above->top, below.right, above->bottom}, std::nullopt, *above});
    }

    std::optional<Rect> headOf(const Rect& side) const {
        return groundAt({side.right, side.top}, [&](const Rect& box) {
            return isNear(box.left, side.right) && isNear(box.top, side.top) &&
                   box.bottom < side.bottom - m_parameters.minimumCellSide && box.width() > side.width();
        });
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
