#include "layout/tables/BoxedFields.h"

#include "layout/support/BoxIndex.h"
#include "layout/tables/RuleLattice.h"
#include "layout/tables/RuledAdmission.h"

#include <algorithm>
#include <tuple>

namespace orvane::layout {
namespace {

/// Whether the cells of a lattice are those of a table: nearly all of them are closed, and their words say so, too.
bool isDrawnTable(const PageText& page, const LatticeGrid& found, std::size_t closed,
                  const TableParameters::Tables& parameters) {
    if (found.grid.cells.size() < 2)
        return false;
    const bool isWhole =
        static_cast<double>(closed) >= parameters.closedShare * static_cast<double>(found.grid.cells.size());
    const CellText text = assignWords(page.lines, found.grid, parameters);
    return isWhole && judgeRuledTable(page, found.grid, text, found.evidence, parameters) == TableVerdict::Table;
}

/// The boxes that hold no other one.
std::vector<Rect> innermost(const std::vector<Rect>& boxes, const TableParameters::Tables& parameters) {
    BoxIndex index(parameters.stripeStep);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        index.add(boxes[i], i);
    std::vector<char> holdsAnother(boxes.size(), 0);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        index.visit(boxes[i], [&](std::size_t other) {
            holdsAnother[other] |= boxes[other].area() > boxes[i].area() &&
                                   boxes[other].contains(Point{boxes[i].centerX(), boxes[i].centerY()});
        });
    std::vector<Rect> result;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (!holdsAnother[i])
            result.push_back(boxes[i]);
    return result;
}

} // namespace

std::vector<Rect> findBoxedFields(const PageText& page, const std::vector<BorderLine>& lines,
                                  const TableParameters::Tables& parameters) {
    std::vector<Rect> boxes;
    for (const LineGroup& group : groupCrossingLines(lines, parameters)) {
        const auto lattice = buildLattice(lines, group, parameters);
        if (!lattice)
            continue;
        const LatticeGrid found = gridOf(*lattice);
        std::vector<Rect> closed;
        for (const GridCell& cell : found.grid.cells)
            if (isClosed(*lattice, cell))
                closed.push_back(found.grid.boxOf(cell));
        if (isDrawnTable(page, found, closed.size(), parameters))
            continue;
        std::erase_if(closed, [&](const Rect& box) {
            return box.height() < parameters.leastFieldHeight || box.width() < parameters.leastFieldWidth;
        });
        boxes.insert(boxes.end(), closed.begin(), closed.end());
    }
    boxes = innermost(boxes, parameters);
    std::sort(boxes.begin(), boxes.end(),
              [](const Rect& a, const Rect& b) { return std::tie(a.top, a.left) < std::tie(b.top, b.left); });
    return boxes;
}

} // namespace orvane::layout
