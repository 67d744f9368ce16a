#include "layout/tables/GroundRows.h"

#include "layout/tables/RowParts.h"

#include <algorithm>
#include <span>

namespace orvane::layout {
namespace {

/// An edge of a ground, upper or lower.
struct GroundEdge {
    double y = 0;
    double left = 0;
    double right = 0;
};

/// How much of the width the edges cover; grounds may be painted one over the other.
double covered(std::span<const GroundEdge> edges) {
    std::vector<GroundEdge> sorted(edges.begin(), edges.end());
    std::sort(sorted.begin(), sorted.end(), [](const GroundEdge& a, const GroundEdge& b) { return a.left < b.left; });
    double width = 0;
    double reach = sorted.front().left;
    for (const GroundEdge& edge : sorted) {
        width += std::max(0.0, edge.right - std::max(edge.left, reach));
        reach = std::max(reach, edge.right);
    }
    return width;
}

/// The edges of the grounds within a drawn row, from top to bottom.
std::vector<GroundEdge> edgesWithin(const Rect& row, const std::vector<Ground>& grounds,
                                    const TableParameters::Tables& parameters) {
    std::vector<GroundEdge> edges;
    for (const Ground& ground : grounds) {
        const double width = overlap(ground.box.left, ground.box.right, row.left, row.right);
        if (ground.isUsed || width < parameters.borderCover * ground.box.width())
            continue;
        for (const double y : {ground.box.top, ground.box.bottom})
            if (y > row.top + parameters.minimumCellSide && y < row.bottom - parameters.minimumCellSide)
                edges.push_back({y, std::max(ground.box.left, row.left), std::min(ground.box.right, row.right)});
    }
    std::sort(edges.begin(), edges.end(), [](const GroundEdge& a, const GroundEdge& b) { return a.y < b.y; });
    return edges;
}

/// Whether texts of the row stand above and below y, and none over it.
bool partsTexts(double y, const Rect& row, const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    bool hasAbove = false;
    bool hasBelow = false;
    for (const Line& line : lines) {
        if (!line.box.intersects(row))
            continue;
        const double slack = parameters.straddleHeight * line.box.height();
        if (line.box.top + slack < y && line.box.bottom - slack > y)
            return false;
        (line.box.centerY() < y ? hasAbove : hasBelow) = true;
    }
    return hasAbove && hasBelow;
}

/// Where grounds that together reach from side to side end within a drawn row.
std::vector<double> partsOf(const Rect& row, const PageText& page, const TableParameters::Tables& parameters) {
    std::vector<double> parts;
    const std::vector<GroundEdge> edges = edgesWithin(row, page.grounds, parameters);
    for (std::size_t first = 0; first < edges.size();) {
        std::size_t end = first;
        while (end < edges.size() && edges[end].y - edges[first].y <= parameters.filledSnap)
            ++end;
        const double width = covered(std::span(edges).subspan(first, end - first));
        if (width >= parameters.headRuleShare * row.width() && partsTexts(edges[first].y, row, page.lines, parameters))
            parts.push_back(edges[first].y);
        first = end;
    }
    return parts;
}

} // namespace

TableGrid partAtGrounds(const TableGrid& grid, const PageText& page, const TableParameters::Tables& parameters) {
    const Rect box = grid.box();
    std::vector<std::vector<double>> edges;
    for (std::size_t row = 0; row + 1 < grid.rowEdges.size(); ++row)
        edges.push_back(partsOf({box.left, grid.rowEdges[row], box.right, grid.rowEdges[row + 1]}, page, parameters));
    std::vector<char> isParted;
    for (const GridCell& cell : grid.cells)
        isParted.push_back(cell.rowSpan == 1);
    return partRows(grid, edges, isParted);
}

} // namespace orvane::layout
