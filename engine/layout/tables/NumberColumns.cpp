#include "layout/tables/NumberColumns.h"

#include "layout/tables/CellPieces.h"
#include "layout/tables/ColumnGaps.h"
#include "layout/text/LabelText.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace orvane::layout {
namespace {

/// The rows of text of each cell.
std::vector<std::vector<PieceRow>> rowsByCell(const TableGrid& grid, const std::vector<Line>& lines,
                                              const TableParameters::Tables& parameters) {
    std::vector<std::vector<PieceRow>> rows;
    for (std::vector<TextPiece>& pieces : piecesByCell(lines, grid, parameters))
        rows.push_back(groupIntoRows(std::move(pieces), parameters));
    return rows;
}

/// Whether the row has numbers, nothing else, and in each of the columns that the gaps part. A number with a dash leads
/// on to the next.
bool isOfNumbers(const PieceRow& row, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines) {
    std::set<int> columns;
    for (const TextPiece& piece : row.pieces) {
        const ColumnRange range = columnsOf(piece, gaps);
        const TextPiece last = pieceOf(lines[piece.line], piece.line, piece.endWord - 1, piece.endWord);
        const bool leadsOn = piece.wordCount() > 1 && isDash(textOf(last, lines));
        if (range.last != range.first || !isNumeric(piece, lines) || leadsOn)
            return false;
        columns.insert(range.first);
    }
    return columns.size() == gaps.size() + 1;
}

/// Takes out the gaps beside dashes that stand between two numbers: from the one to the other.
void joinRanges(std::vector<ColumnGap>& gaps, const std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                const TableParameters::Tables& parameters) {
    std::vector<std::size_t> texts(gaps.size() + 1);
    std::vector<std::size_t> dashes(gaps.size() + 1);
    for (const PieceRow& row : rows) {
        for (const TextPiece& piece : row.pieces) {
            const auto column = static_cast<std::size_t>(columnsOf(piece, gaps).first);
            ++texts[column];
            dashes[column] += isDash(textOf(piece, lines));
        }
    }
    for (std::size_t i = gaps.size(); i-- > 1;)
        if (texts[i] > 0 && static_cast<double>(dashes[i]) >= parameters.numberedShare * static_cast<double>(texts[i]))
            gaps.erase(gaps.begin() + static_cast<std::ptrdiff_t>(i) - 1,
                       gaps.begin() + static_cast<std::ptrdiff_t>(i) + 1);
}

/// The gaps between the numbers of one drawn column; none where other texts stand there, too.
std::vector<ColumnGap> gapsOf(const std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                              const TableParameters::Tables& parameters) {
    std::vector<PieceRow> telling;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(telling),
                 [](const PieceRow& row) { return row.pieces.size() > 1; });
    std::vector<ColumnGap> gaps = findColumnGaps(telling, parameters);
    joinRanges(gaps, telling, lines, parameters);
    const auto numbers = std::count_if(telling.begin(), telling.end(),
                                       [&](const PieceRow& row) { return isOfNumbers(row, gaps, lines); });
    if (numbers < parameters.fewestPartedRows ||
        static_cast<double>(numbers) < parameters.numberedShare * static_cast<double>(telling.size()))
        gaps.clear();
    return gaps;
}

/// Whether the texts of a cell keep to the columns.
bool isParted(const std::vector<PieceRow>& rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines) {
    const auto keeps = [&](const TextPiece& piece) {
        const ColumnRange range = columnsOf(piece, gaps);
        return range.first == range.last;
    };
    const bool hasText = !rows.empty();
    const bool isAlone = rows.size() == 1 && rows.front().pieces.size() == 1;
    return hasText && (!isAlone || isNumeric(rows.front().pieces.front(), lines)) &&
           std::ranges::all_of(rows, [&](const PieceRow& row) { return std::ranges::all_of(row.pieces, keeps); });
}

/// The grid with all of its columns where the gaps lie, each cell still whole.
TableGrid withColumns(const TableGrid& grid, const std::vector<std::vector<ColumnGap>>& gaps) {
    TableGrid parted{{}, grid.rowEdges, grid.cells};
    std::vector<int> newColumn;
    for (std::size_t column = 0; column < grid.columnEdges.size(); ++column) {
        newColumn.push_back(static_cast<int>(parted.columnEdges.size()));
        parted.columnEdges.push_back(grid.columnEdges[column]);
        for (std::size_t i = 0; column < gaps.size() && i < gaps[column].size(); ++i)
            parted.columnEdges.push_back(gaps[column][i].middle());
    }
    for (GridCell& cell : parted.cells) {
        const int end = newColumn[static_cast<std::size_t>(cell.column + cell.columnSpan)];
        cell.column = newColumn[static_cast<std::size_t>(cell.column)];
        cell.columnSpan = end - cell.column;
    }
    return parted;
}

} // namespace

TableGrid partAtNumbers(const TableGrid& grid, const std::vector<Line>& lines,
                        const TableParameters::Tables& parameters) {
    const std::vector<std::vector<PieceRow>> rows = rowsByCell(grid, lines, parameters);
    std::vector<std::vector<ColumnGap>> gaps(static_cast<std::size_t>(grid.columns()));
    for (int column = 0; column < grid.columns(); ++column) {
        std::vector<PieceRow> ofColumn;
        for (std::size_t i = 0; i < grid.cells.size(); ++i)
            if (grid.cells[i].column == column && grid.cells[i].columnSpan == 1)
                ofColumn.insert(ofColumn.end(), rows[i].begin(), rows[i].end());
        gaps[static_cast<std::size_t>(column)] = gapsOf(ofColumn, lines, parameters);
    }
    TableGrid parted = withColumns(grid, gaps);
    std::vector<GridCell> cells;
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        const bool isCut = grid.cells[i].columnSpan == 1 &&
                           isParted(rows[i], gaps[static_cast<std::size_t>(grid.cells[i].column)], lines);
        const GridCell& cell = parted.cells[i];
        for (int column = cell.column; isCut && column < cell.column + cell.columnSpan; ++column)
            cells.push_back({cell.row, column, cell.rowSpan, 1});
        if (!isCut)
            cells.push_back(cell);
    }
    parted.cells = std::move(cells);
    return parted;
}

} // namespace orvane::layout
