#include "layout/tables/RuleLattice.h"

#include "layout/support/DisjointSets.h"
#include "layout/tables/GridShapes.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace orvane::layout {
namespace {

/// Positions of the lines of one direction, and the ends of at least two lines of the other that reach beyond them: a
/// table without its outer border.
std::vector<double> edgePositions(const std::vector<const BorderLine*>& along,
                                  const std::vector<const BorderLine*>& across,
                                  const TableParameters::Tables& parameters) {
    std::vector<double> values;
    for (const BorderLine* line : along)
        values.push_back(line->position);
    std::vector<double> positions = clusterPositions(values, parameters.lineSnap);
    std::vector<double> starts, ends;
    for (const BorderLine* line : across) {
        starts.push_back(line->from);
        ends.push_back(line->to);
    }
    // A rule under the head alone crosses the rules between the columns, and ends where the outer columns do.
    const auto isCrossed = [&](const BorderLine* line) {
        return line->from < across.front()->position - parameters.minimumCellSide &&
               line->to > across.front()->position + parameters.minimumCellSide;
    };
    if (starts.size() == 1 && across.front()->direction == RuleDirection::Horizontal &&
        std::count_if(along.begin(), along.end(), isCrossed) >= 2) {
        starts.push_back(starts.front());
        ends.push_back(ends.front());
    }
    // The second farthest: one line alone that overshoots makes no column.
    if (starts.size() >= 2) {
        std::nth_element(starts.begin(), starts.begin() + 1, starts.end());
        std::nth_element(ends.begin(), ends.begin() + 1, ends.end(), std::greater<>());
        if (positions.empty() || starts[1] < positions.front() - parameters.minimumCellSide)
            positions.insert(positions.begin(), starts[1]);
        if (ends[1] > positions.back() + parameters.minimumCellSide)
            positions.push_back(ends[1]);
    }
    return positions;
}

/// Calls `mark(i)` for every interval of `edges` that the line covers.
void forCoveredIntervals(const BorderLine& line, const std::vector<double>& edges,
                         const TableParameters::Tables& parameters, const std::function<void(std::size_t)>& mark) {
    const auto start = std::upper_bound(edges.begin(), edges.end(), line.from);
    std::size_t i = start == edges.begin() ? 0 : static_cast<std::size_t>(start - edges.begin()) - 1;
    for (; i + 1 < edges.size() && edges[i] < line.to; ++i) {
        const double length = edges[i + 1] - edges[i];
        const double drawn = overlap(line.from, line.to, edges[i], edges[i + 1]);
        const double joined =
            overlap(line.from - parameters.joinGap, line.to + parameters.joinGap, edges[i], edges[i + 1]);
        if (joined >= (1 - parameters.missingShare) * length && drawn >= parameters.borderCover * length)
            mark(i);
    }
}

bool coversAnInterval(const BorderLine& line, const std::vector<double>& edges,
                      const TableParameters::Tables& parameters) {
    bool covers = false;
    forCoveredIntervals(line, edges, parameters, [&](std::size_t) { covers = true; });
    return covers;
}

/// The lines of a group by direction, with their positions across. Lines that end within a cell (a blank to be filled
/// in, an arrow) are dropped: they border nothing.
class LatticeBuilder {
public:
    LatticeBuilder(const std::vector<BorderLine>& lines, const LineGroup& group,
                   const TableParameters::Tables& parameters)
        : m_parameters(parameters) {
        for (const std::size_t i : group)
            (lines[i].direction == RuleDirection::Horizontal ? m_horizontal : m_vertical).push_back(&lines[i]);
    }

    std::optional<RuleLattice> build() {
        for (bool isStable = false; !isStable;) {
            m_lattice.xs = edgePositions(m_vertical, m_horizontal, m_parameters);
            m_lattice.ys = edgePositions(m_horizontal, m_vertical, m_parameters);
            if (m_lattice.xs.size() < 2 || m_lattice.ys.size() < 2)
                return std::nullopt;
            if (m_lattice.columns() * m_lattice.rows() > static_cast<std::size_t>(m_parameters.maximumPlaces))
                return std::nullopt;
            const bool keepsHorizontal = dropDangling(m_horizontal, m_lattice.xs);
            const bool keepsVertical = dropDangling(m_vertical, m_lattice.ys);
            isStable = keepsHorizontal && keepsVertical;
        }
        markSides();
        return m_lattice;
    }

private:
    bool dropDangling(std::vector<const BorderLine*>& lines, const std::vector<double>& edges) const {
        return std::erase_if(
                   lines, [&](const BorderLine* line) { return !coversAnInterval(*line, edges, m_parameters); }) == 0;
    }

    void markSides() {
        m_lattice.horizontal.assign(m_lattice.ys.size() * m_lattice.columns(), 0);
        m_lattice.vertical.assign(m_lattice.rows() * m_lattice.xs.size(), 0);
        for (const BorderLine* line : m_horizontal) {
            const std::size_t edge = nearestIndex(m_lattice.ys, line->position);
            forCoveredIntervals(*line, m_lattice.xs, m_parameters, [&](std::size_t column) {
                m_lattice.horizontal[edge * m_lattice.columns() + column] = 1;
            });
        }
        for (const BorderLine* line : m_vertical) {
            const std::size_t edge = nearestIndex(m_lattice.xs, line->position);
            forCoveredIntervals(*line, m_lattice.ys, m_parameters,
                                [&](std::size_t row) { m_lattice.vertical[row * m_lattice.xs.size() + edge] = 1; });
        }
    }

    const TableParameters::Tables& m_parameters;
    std::vector<const BorderLine*> m_horizontal;
    std::vector<const BorderLine*> m_vertical;
    RuleLattice m_lattice;
};

} // namespace

std::vector<LineGroup> groupCrossingLines(const std::vector<BorderLine>& lines,
                                          const TableParameters::Tables& parameters) {
    const auto firstVertical = std::find_if(
        lines.begin(), lines.end(), [](const BorderLine& line) { return line.direction == RuleDirection::Vertical; });
    const auto isAbove = [](const BorderLine& line, double y) { return line.position < y; };
    DisjointSets sets(lines.size());
    for (auto vertical = firstVertical; vertical != lines.end(); ++vertical) {
        const double top = vertical->from - parameters.joinGap;
        const double bottom = vertical->to + parameters.joinGap;
        for (auto it = std::lower_bound(lines.begin(), firstVertical, top, isAbove);
             it != firstVertical && it->position <= bottom; ++it) {
            if (vertical->position >= it->from - parameters.joinGap &&
                vertical->position <= it->to + parameters.joinGap)
                sets.unite(static_cast<std::size_t>(vertical - lines.begin()),
                           static_cast<std::size_t>(it - lines.begin()));
        }
    }
    std::vector<LineGroup> groups;
    for (LineGroup& group : sets.groups())
        if (group.size() > 1)
            groups.push_back(std::move(group));
    return groups;
}

std::optional<RuleLattice> buildLattice(const std::vector<BorderLine>& lines, const LineGroup& group,
                                        const TableParameters::Tables& parameters) {
    return LatticeBuilder(lines, group, parameters).build();
}

LatticeGrid gridOf(const RuleLattice& lattice) {
    const std::size_t columns = lattice.columns();
    DisjointSets sets(columns * lattice.rows());
    for (std::size_t row = 0; row < lattice.rows(); ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            if (column > 0 && !lattice.isDrawnLeftOf(row, column))
                sets.unite(row * columns + column, row * columns + column - 1);
            if (row > 0 && !lattice.isDrawnAbove(row, column))
                sets.unite(row * columns + column, (row - 1) * columns + column);
        }
    }
    std::vector<std::size_t> ownerOfPlace(columns * lattice.rows());
    for (std::size_t place = 0; place < ownerOfPlace.size(); ++place)
        ownerOfPlace[place] = sets.find(place);
    CutCells cut = cutIntoCells(ownerOfPlace, columns);
    const bool areClosed =
        std::all_of(cut.cells.begin(), cut.cells.end(), [&](const GridCell& cell) { return isClosed(lattice, cell); });
    return {{lattice.xs, lattice.ys, std::move(cut.cells)}, {cut.forced, areClosed}};
}

bool isClosed(const RuleLattice& lattice, const GridCell& cell) {
    const auto firstRow = static_cast<std::size_t>(cell.row), firstColumn = static_cast<std::size_t>(cell.column);
    const std::size_t endRow = firstRow + static_cast<std::size_t>(cell.rowSpan);
    const std::size_t endColumn = firstColumn + static_cast<std::size_t>(cell.columnSpan);
    for (std::size_t column = firstColumn; column < endColumn; ++column)
        if (!lattice.isDrawnAbove(firstRow, column) || !lattice.isDrawnAbove(endRow, column))
            return false;
    for (std::size_t row = firstRow; row < endRow; ++row)
        if (!lattice.isDrawnLeftOf(row, firstColumn) || !lattice.isDrawnLeftOf(row, endColumn))
            return false;
    return true;
}

} // namespace orvane::layout
