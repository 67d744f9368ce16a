#include "layout/tables/TextColumns.h"

#include "base/Utf8.h"
#include "layout/tables/CellPieces.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace orvane::layout {
namespace {

/// The lines of one text below each other.
using TextColumn = std::vector<TextPiece>;

class TextColumnFinder {
public:
    TextColumnFinder(const std::vector<Line>& lines, const TableParameters::Tables& parameters)
        : m_lines(lines)
        , m_parameters(parameters) {}

    /// The x of the edges between the texts of a cell; none where it holds but one.
    std::vector<double> edgesWithin(std::vector<TextPiece> pieces) const {
        const std::vector<PieceRow> rows = groupIntoRows(std::move(pieces), m_parameters);
        if (rows.size() < 2 || rows.front().pieces.size() < 2)
            return {};
        const std::vector<TextColumn> columns = columnsOf(rows);
        std::vector<double> edges;
        if (areTexts(columns))
            for (std::size_t i = 1; i < columns.size(); ++i)
                edges.push_back((endOf(columns[i - 1]) + startOf(columns[i])) / 2);
        return edges;
    }

private:
    static double startOf(const TextColumn& column) {
        double start = column.front().box.left;
        for (const TextPiece& piece : column)
            start = std::min(start, piece.box.left);
        return start;
    }

    static double endOf(const TextColumn& column) {
        double end = column.front().box.right;
        for (const TextPiece& piece : column)
            end = std::max(end, piece.box.right);
        return end;
    }

    /// The texts that stand above each other, whatever they share of their widths; from left to right, each column from
    /// top to bottom.
    static std::vector<TextColumn> columnsOf(const std::vector<PieceRow>& rows) {
        TextColumn pieces;
        for (const PieceRow& row : rows)
            pieces.insert(pieces.end(), row.pieces.begin(), row.pieces.end());
        std::sort(pieces.begin(), pieces.end(),
                  [](const TextPiece& a, const TextPiece& b) { return a.box.left < b.box.left; });
        std::vector<TextColumn> columns;
        double reach = 0;
        for (const TextPiece& piece : pieces) {
            if (columns.empty() || piece.box.left >= reach)
                columns.emplace_back();
            reach = columns.back().empty() ? piece.box.right : std::max(reach, piece.box.right);
            columns.back().push_back(piece);
        }
        for (TextColumn& column : columns)
            std::sort(column.begin(), column.end(),
                      [](const TextPiece& a, const TextPiece& b) { return a.baseline < b.baseline; });
        return columns;
    }

    /// Whether each of the columns goes on from line to line, and two of them show that they do.
    bool areTexts(const std::vector<TextColumn>& columns) const {
        const bool areApart = standApart(columns);
        int shown = 0;
        for (const TextColumn& column : columns) {
            bool isShown = false;
            for (std::size_t i = 1; i < column.size(); ++i) {
                const bool isRest = areApart && startsLowerCase(column[i]);
                if (!isNextLine(column[i - 1], column[i]) || !(isRest || areCentered(column[i - 1], column[i])))
                    return false;
                isShown = isShown || isRest || areUneven(column[i - 1], column[i]);
            }
            shown += isShown;
        }
        return shown >= 2;
    }

    /// Whether there is more between the columns than a stretched blank.
    bool standApart(const std::vector<TextColumn>& columns) const {
        for (std::size_t i = 1; i < columns.size(); ++i)
            if (startOf(columns[i]) - endOf(columns[i - 1]) <= m_parameters.widestStretch * columns[i].front().fontSize)
                return false;
        return true;
    }

    bool isNextLine(const TextPiece& above, const TextPiece& below) const {
        return below.baseline - above.baseline <= m_parameters.wrapPitch * below.fontSize;
    }

    bool startsLowerCase(const TextPiece& piece) const {
        return u_islower(static_cast<UChar32>(utf32FromUtf8(textOf(piece, m_lines)).front())) != 0;
    }

    bool areCentered(const TextPiece& above, const TextPiece& below) const {
        return std::abs(above.box.centerX() - below.box.centerX()) <= m_parameters.startSnap;
    }

    /// Whether the lengths of two texts tell that they stand in the middle of one column; numbers are rows.
    bool areUneven(const TextPiece& above, const TextPiece& below) const {
        return std::abs(above.box.width() - below.box.width()) > m_parameters.unevenTexts * below.fontSize &&
               !(isNumeric(above, m_lines) && isNumeric(below, m_lines));
    }

    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
};

/// The grid with further columns, in which each cell takes the room that it had.
TableGrid withEdges(const TableGrid& grid, const std::vector<double>& edges, double snap) {
    TableGrid parted{grid.columnEdges, grid.rowEdges, grid.cells};
    for (const double x : edges) {
        const bool isThere = std::any_of(parted.columnEdges.begin(), parted.columnEdges.end(),
                                         [&](double other) { return std::abs(other - x) <= snap; });
        if (!isThere)
            parted.columnEdges.insert(std::upper_bound(parted.columnEdges.begin(), parted.columnEdges.end(), x), x);
    }
    const auto placeOf = [&](int column) {
        const double x = grid.columnEdges[static_cast<std::size_t>(column)];
        return static_cast<int>(std::lower_bound(parted.columnEdges.begin(), parted.columnEdges.end(), x) -
                                parted.columnEdges.begin());
    };
    for (GridCell& cell : parted.cells) {
        const int end = placeOf(cell.column + cell.columnSpan);
        cell.column = placeOf(cell.column);
        cell.columnSpan = end - cell.column;
    }
    return parted;
}

/// Cuts the cell at the columns nearest to the edges.
void cutCell(GridCell cell, const std::vector<double>& edges, const TableGrid& grid, std::vector<GridCell>& cells) {
    const int end = cell.column + cell.columnSpan;
    for (const double x : edges) {
        const auto first = grid.columnEdges.begin() + cell.column + 1;
        const auto last = grid.columnEdges.begin() + end;
        if (first >= last)
            break;
        const auto nearest =
            std::min_element(first, last, [&](double a, double b) { return std::abs(a - x) < std::abs(b - x); });
        const int column = static_cast<int>(nearest - grid.columnEdges.begin());
        cells.push_back({cell.row, cell.column, cell.rowSpan, column - cell.column});
        cell.column = column;
    }
    cells.push_back({cell.row, cell.column, cell.rowSpan, end - cell.column});
}

/// Of the edges those that the texts of a cell keep: with one of them at least on both sides.
std::vector<double> edgesKept(const std::vector<TextPiece>& pieces, const std::vector<double>& edges) {
    std::vector<double> kept;
    const auto isFilled = [&](double left, double right) {
        return std::any_of(pieces.begin(), pieces.end(),
                           [&](const TextPiece& piece) { return piece.box.left >= left && piece.box.right <= right; });
    };
    constexpr double kFar = std::numeric_limits<double>::max();
    for (const double x : edges) {
        const bool isCrossed = std::any_of(pieces.begin(), pieces.end(), [&](const TextPiece& piece) {
            return piece.box.left < x && piece.box.right > x;
        });
        if (!isCrossed && isFilled(kept.empty() ? -kFar : kept.back(), x) && isFilled(x, kFar))
            kept.push_back(x);
    }
    return kept;
}

/// The edges within each cell, by index into TableGrid::cells.
std::vector<std::vector<double>> edgesByCell(const TableGrid& grid, const std::vector<std::vector<TextPiece>>& pieces,
                                             const TextColumnFinder& finder) {
    std::vector<std::vector<double>> edges;
    std::map<std::pair<int, int>, std::vector<double>> edgesOfSpan;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        edges.push_back(finder.edgesWithin(pieces[i]));
        if (!edges[i].empty())
            edgesOfSpan.emplace(std::pair(grid.cells[i].column, grid.cells[i].columnSpan), edges[i]);
    }
    // What stands above or below in the same drawn column may keep to those of the texts.
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const auto shown = edgesOfSpan.find({grid.cells[i].column, grid.cells[i].columnSpan});
        if (edges[i].empty() && shown != edgesOfSpan.end())
            edges[i] = edgesKept(pieces[i], shown->second);
    }
    return edges;
}

} // namespace

TableGrid partAtTexts(const TableGrid& grid, const std::vector<Line>& lines,
                      const TableParameters::Tables& parameters) {
    const TextColumnFinder finder(lines, parameters);
    const std::vector<std::vector<double>> edgesOfCell =
        edgesByCell(grid, piecesByCell(lines, grid, parameters), finder);
    std::vector<double> edges;
    for (const std::vector<double>& ofCell : edgesOfCell)
        edges.insert(edges.end(), ofCell.begin(), ofCell.end());
    if (edges.empty())
        return grid;
    TableGrid parted = withEdges(grid, edges, parameters.lineSnap);
    std::vector<GridCell> cells;
    for (std::size_t i = 0; i < parted.cells.size(); ++i)
        cutCell(parted.cells[i], edgesOfCell[i], parted, cells);
    parted.cells = std::move(cells);
    return parted;
}

} // namespace orvane::layout
