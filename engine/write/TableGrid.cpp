#include "write/TableGrid.h"

#include <algorithm>
#include <numeric>

namespace orvane::write {
namespace {

using namespace document;

/// Word processors refuse tables with more columns.
constexpr int kMostColumns = 63;
/// The width of a column that the grid does not name.
constexpr Twips kUnknownWidth{1440};

/// How many columns the cells of a table need.
int neededColumns(const Table& table) {
    int needed = 1;
    for (const TableRow& row : table.rows)
        for (const TableCell& cell : row.cells)
            needed = std::max(needed, std::min(cell.column, kMostColumns) + std::min(cell.columnSpan, kMostColumns));
    return needed;
}

/// Gaps at the sides of a row are not cells but free columns.
void freeTheSides(PlacedRow& row) {
    const auto isGap = [](const PlacedCell& cell) { return !cell.cell && cell.appended.empty(); };
    if (row.cells.size() > 1 && isGap(row.cells.back())) {
        row.columnsAfter = row.cells.back().span;
        row.cells.pop_back();
    }
    if (row.cells.size() > 1 && isGap(row.cells.front())) {
        row.columnsBefore = row.cells.front().span;
        row.cells.erase(row.cells.begin());
    }
}

} // namespace

TableGrid::TableGrid(const Table& table)
    : m_columnWidths(table.columnWidths) {
    const auto needed = static_cast<std::size_t>(neededColumns(table));
    if (m_columnWidths.size() < needed)
        m_columnWidths.resize(needed, kUnknownWidth);
    if (columnCount() > kMostColumns) {
        // The last column takes in what lies beyond it.
        const auto last = m_columnWidths.begin() + kMostColumns - 1;
        *last = std::accumulate(last, m_columnWidths.end(), Twips(0));
        m_columnWidths.resize(kMostColumns);
        m_wasCut = true;
    }
    m_covers.resize(m_columnWidths.size());
}

Twips TableGrid::width(int column, int span) const {
    const auto first = m_columnWidths.begin() + column;
    return std::accumulate(first, first + span, Twips(0));
}

PlacedRow TableGrid::place(const TableRow& row) {
    PlacedRow placed;
    auto next = row.cells.begin();
    for (int column = 0; column < columnCount();) {
        const bool isCovered = m_covers[static_cast<std::size_t>(column)].rowsLeft > 0;
        const bool isCellDue = next != row.cells.end() && next->column <= column;
        if (isCovered)
            placed.cells.push_back(continueCell(column));
        else if (isCellDue)
            placed.cells.push_back(placeCell(*next++, column));
        else
            placed.cells.push_back(
                {column, freeColumnsFrom(column, next != row.cells.end() ? next->column : columnCount())});
        column += placed.cells.back().span;
    }
    for (; next != row.cells.end(); ++next)
        placed.cells.back().appended.push_back(&*next);
    freeTheSides(placed);
    return placed;
}

/// How many columns from `column` on nothing reaches into from above, up to `limit`.
int TableGrid::freeColumnsFrom(int column, int limit) const {
    const int end = std::clamp(limit, column + 1, columnCount());
    int last = column + 1;
    while (last < end && m_covers[static_cast<std::size_t>(last)].rowsLeft == 0)
        ++last;
    return last - column;
}

PlacedCell TableGrid::placeCell(const TableCell& cell, int column) {
    PlacedCell placed{column, freeColumnsFrom(column, column + std::min(std::max(1, cell.columnSpan), kMostColumns))};
    placed.cell = &cell;
    if (cell.rowSpan > 1) {
        placed.merge = VerticalMerge::Starts;
        m_covers[static_cast<std::size_t>(column)] = {&cell, placed.span, cell.rowSpan - 1};
    }
    return placed;
}

PlacedCell TableGrid::continueCell(int column) {
    Cover& cover = m_covers[static_cast<std::size_t>(column)];
    --cover.rowsLeft;
    PlacedCell placed{column, cover.span, VerticalMerge::Continues};
    placed.cell = cover.cell;
    return placed;
}

PlacedRow withSideCells(PlacedRow row, const TableGrid& grid) {
    const int columns = static_cast<int>(grid.columnWidths().size());
    if (row.columnsBefore > 0)
        row.cells.insert(row.cells.begin(), PlacedCell{0, row.columnsBefore});
    if (row.columnsAfter > 0)
        row.cells.push_back(PlacedCell{columns - row.columnsAfter, row.columnsAfter});
    row.columnsBefore = row.columnsAfter = 0;
    return row;
}

} // namespace orvane::write
