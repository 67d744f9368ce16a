#include "layout/tables/NestedGrids.h"

#include "layout/tables/CellText.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

/// Columns and rows [first, end) of a grid.
struct Area {
    int firstColumn = 0;
    int endColumn = 0;
    int firstRow = 0;
    int endRow = 0;
};

bool isWithin(const GridCell& cell, const Area& area) {
    return cell.column >= area.firstColumn && cell.column + cell.columnSpan <= area.endColumn &&
           cell.row >= area.firstRow && cell.row + cell.rowSpan <= area.endRow;
}

bool isBeside(const GridCell& cell, const Area& area) {
    return cell.column >= area.endColumn || cell.column + cell.columnSpan <= area.firstColumn ||
           cell.row >= area.endRow || cell.row + cell.rowSpan <= area.firstRow;
}

/// Drops the edges that no cell begins or ends at.
TableGrid tidied(const TableGrid& grid) {
    TableGrid result;
    std::vector<int> newColumn(grid.columnEdges.size(), -1);
    std::vector<int> newRow(grid.rowEdges.size(), -1);
    for (const GridCell& cell : grid.cells) {
        for (const int column : {cell.column, cell.column + cell.columnSpan})
            newColumn[static_cast<std::size_t>(column)] = 0;
        for (const int row : {cell.row, cell.row + cell.rowSpan})
            newRow[static_cast<std::size_t>(row)] = 0;
    }
    const auto keepUsed = [](std::vector<int>& isUsed, const std::vector<double>& edges, std::vector<double>& kept) {
        for (std::size_t i = 0; i < edges.size(); ++i) {
            if (isUsed[i] < 0)
                continue;
            isUsed[i] = static_cast<int>(kept.size());
            kept.push_back(edges[i]);
        }
    };
    keepUsed(newColumn, grid.columnEdges, result.columnEdges);
    keepUsed(newRow, grid.rowEdges, result.rowEdges);
    const auto at = [](const std::vector<int>& places, int i) { return places[static_cast<std::size_t>(i)]; };
    for (const GridCell& cell : grid.cells) {
        const int row = at(newRow, cell.row);
        const int column = at(newColumn, cell.column);
        result.cells.push_back({row, column, at(newRow, cell.row + cell.rowSpan) - row,
                                at(newColumn, cell.column + cell.columnSpan) - column});
    }
    return result;
}

class NestedGridTaker {
public:
    NestedGridTaker(LatticeGrid& found, const RuleLattice& lattice, const std::vector<Line>& lines,
                    const TableParameters::Tables& parameters)
        : m_found(found)
        , m_lattice(lattice)
        , m_text(assignWords(lines, found.grid, parameters))
        , m_parameters(parameters) {}

    std::vector<TableGrid> take() {
        std::vector<TableGrid> nested;
        std::vector<Area> hosts;
        for (std::size_t left = 0; left < cells().size(); ++left) {
            const std::optional<Area> inner = isStrip(left) ? areaBehind(cells()[left]) : std::nullopt;
            if (!inner)
                continue;
            nested.push_back(gridOf(*inner));
            hosts.push_back(hostOf(*inner));
            // The strips and what lies above or below them were one shape, and no rectangle.
            const int ends = (hosts.back().firstRow < inner->firstRow) + (hosts.back().endRow > inner->endRow);
            m_found.evidence.forcedCells -= ends > 0 ? ends + 2 : 0;
        }
        for (const Area& host : hosts)
            mergeCells(host);
        if (!hosts.empty())
            m_found.grid = tidied(m_found.grid);
        return nested;
    }

private:
    const std::vector<GridCell>& cells() const { return m_found.grid.cells; }

    /// Empty columns of the table itself are parted by the rules of every row.
    bool isStrip(std::size_t index) const {
        return m_text.wordsOfCell[index].empty() && cells()[index].columnSpan == 1 && cells()[index].rowSpan > 1;
    }

    double widthOf(const GridCell& cell) const { return m_found.grid.boxOf(cell).width(); }

    /// Whether the strips are the margins of the grid between them: narrow, or as wide as each other and narrower than
    /// any of its cells, all of which hold text.
    bool areMargins(const GridCell& left, const GridCell& right, const Area& inner) const {
        if (std::max(widthOf(left), widthOf(right)) <= m_parameters.nestedMargin)
            return true;
        if (std::abs(widthOf(left) - widthOf(right)) > m_parameters.startSnap)
            return false;
        for (std::size_t i = 0; i < cells().size(); ++i)
            if (isWithin(cells()[i], inner) && (m_text.wordsOfCell[i].empty() || widthOf(cells()[i]) <= widthOf(left)))
                return false;
        return true;
    }

    /// The cells between the strip and the next one of the same height, if they are a grid of their own.
    std::optional<Area> areaBehind(const GridCell& strip) const {
        std::optional<std::size_t> end;
        for (std::size_t i = 0; i < cells().size(); ++i) {
            const GridCell& other = cells()[i];
            if (other.row == strip.row && other.rowSpan == strip.rowSpan && other.column > strip.column + 1 &&
                isStrip(i) && (!end || other.column < cells()[*end].column))
                end = i;
        }
        if (!end)
            return std::nullopt;
        const Area area{strip.column + 1, cells()[*end].column, strip.row, strip.row + strip.rowSpan};
        int within = 0;
        for (const GridCell& cell : cells()) {
            if (isWithin(cell, area))
                ++within;
            else if (!isBeside(cell, area))
                return std::nullopt;
        }
        return within > 1 && areMargins(strip, cells()[*end], area) ? std::optional(area) : std::nullopt;
    }

    TableGrid gridOf(const Area& area) const {
        TableGrid grid = m_found.grid;
        std::erase_if(grid.cells, [&](const GridCell& cell) { return !isWithin(cell, area); });
        return tidied(grid);
    }

    /// The cell around a grid: its strips, and what hangs together with them below it and above it.
    Area hostOf(const Area& inner) const {
        Area host{inner.firstColumn - 1, inner.endColumn + 1, inner.firstRow, inner.endRow};
        const auto column = static_cast<std::size_t>(host.firstColumn);
        for (const GridCell& cell : cells()) {
            if (cell.column != host.firstColumn || cell.columnSpan != host.endColumn - host.firstColumn)
                continue;
            if (cell.row == inner.endRow && !m_lattice.isDrawnAbove(static_cast<std::size_t>(cell.row), column))
                host.endRow = cell.row + cell.rowSpan;
            if (cell.row + cell.rowSpan == inner.firstRow &&
                !m_lattice.isDrawnAbove(static_cast<std::size_t>(inner.firstRow), column))
                host.firstRow = cell.row;
        }
        return host;
    }

    void mergeCells(const Area& host) {
        std::erase_if(m_found.grid.cells, [&](const GridCell& cell) { return isWithin(cell, host); });
        const GridCell merged{host.firstRow, host.firstColumn, host.endRow - host.firstRow,
                              host.endColumn - host.firstColumn};
        const auto after = std::find_if(cells().begin(), cells().end(), [&](const GridCell& cell) {
            return cell.row > merged.row || (cell.row == merged.row && cell.column > merged.column);
        });
        m_found.grid.cells.insert(after, merged);
    }

    LatticeGrid& m_found;
    const RuleLattice& m_lattice;
    CellText m_text;
    const TableParameters::Tables& m_parameters;
};

} // namespace

std::vector<TableGrid> takeNestedGrids(LatticeGrid& found, const RuleLattice& lattice, const std::vector<Line>& lines,
                                       const TableParameters::Tables& parameters) {
    return NestedGridTaker(found, lattice, lines, parameters).take();
}

} // namespace orvane::layout
