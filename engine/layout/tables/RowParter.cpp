#include "layout/tables/RowParter.h"

#include "layout/tables/CellPieces.h"
#include "layout/tables/PairedLines.h"
#include "layout/tables/RowGrouper.h"
#include "layout/tables/RowParts.h"
#include "layout/text/LabelText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// A cell that lies in one drawn row.
struct BandCell {
    std::size_t cell = 0; ///< index into TableGrid::cells
    std::vector<TextPiece> pieces;
    bool isListing = false;
};

/// The rows that the texts of one drawn row make.
struct TextRows {
    std::vector<double> tops; ///< y of the edges above all but the first
    std::vector<double> baselines;
    std::vector<double> firstBaselines; ///< of each row
};

/// Finds the rows within one drawn row.
class BandReader {
public:
    BandReader(const TableGrid& grid, const std::vector<Line>& lines, const TableParameters::Tables& parameters)
        : m_grid(grid)
        , m_lines(lines)
        , m_parameters(parameters) {}

    /// Each line a row.
    TextRows readLines(std::vector<BandCell>& cells) const {
        std::vector<TextPiece> listed;
        for (BandCell& cell : cells) {
            cell.isListing = true;
            listed.insert(listed.end(), cell.pieces.begin(), cell.pieces.end());
        }
        const std::vector<PieceRow> rows = groupIntoRows(std::move(listed), m_parameters);
        std::vector<RowGroup> groups;
        for (std::size_t i = 0; i < rows.size(); ++i)
            groups.push_back({i, i + 1});
        return rowsOf(rows, groups);
    }

    TextRows read(std::vector<BandCell>& cells) const {
        std::vector<TextPiece> listed;
        int numbers = 0;
        int unwrapped = 0;
        const bool arePairs = holdPairs(cells);
        for (BandCell& cell : cells) {
            const bool isOfNumbers = isColumnOfNumbers(cell.pieces);
            const bool isWrapped = isMostlyWrapped(cell);
            cell.isListing = isLongEnough(cell.pieces) ? isOfNumbers || !isWrapped : arePairs && isPair(cell);
            if (!cell.isListing)
                continue;
            listed.insert(listed.end(), cell.pieces.begin(), cell.pieces.end());
            numbers += isOfNumbers;
            unwrapped += !isWrapped;
        }
        // Numbers that fill their column may be one list that was broken at the cell's side; two such are not.
        if (numbers == 0 || (numbers == 1 && unwrapped == 0))
            return {};
        const TextRows rows = rowsOf(groupIntoRows(listed, m_parameters));
        return takeLabels(cells, rows, listed) ? rowsOf(groupIntoRows(listed, m_parameters)) : rows;
    }

private:
    /// Adds the texts of cells that have one beside each row, be they of several lines; whether there are such.
    bool takeLabels(std::vector<BandCell>& cells, const TextRows& rows, std::vector<TextPiece>& listed) const {
        bool hasTaken = false;
        for (BandCell& cell : cells) {
            const bool hasLabels =
                !rows.tops.empty() && !cell.isListing &&
                std::all_of(rows.firstBaselines.begin(), rows.firstBaselines.end(), [&](double y) {
                    return std::any_of(cell.pieces.begin(), cell.pieces.end(), [&](const TextPiece& piece) {
                        return std::abs(piece.baseline - y) <= m_parameters.rowSnap * piece.fontSize;
                    });
                });
            if (!hasLabels)
                continue;
            cell.isListing = true;
            listed.insert(listed.end(), cell.pieces.begin(), cell.pieces.end());
            hasTaken = true;
        }
        return hasTaken;
    }

    /// Whether the cell holds two numbers, one below the other.
    bool isPair(const BandCell& cell) const {
        return cell.pieces.size() == 2 && isColumnOfNumbers(cell.pieces) &&
               groupIntoRows(cell.pieces, m_parameters).size() == 2;
    }

    /// Whether so many cells side by side hold two numbers that these are two rows.
    bool holdPairs(const std::vector<BandCell>& cells) const {
        const auto pairs =
            std::count_if(cells.begin(), cells.end(), [&](const BandCell& cell) { return isPair(cell); });
        return static_cast<std::size_t>(pairs) >= m_parameters.fullRow;
    }

    bool isLongEnough(const std::vector<TextPiece>& pieces) const {
        return groupIntoRows(pieces, m_parameters).size() >= static_cast<std::size_t>(m_parameters.fewestPartedRows);
    }

    /// Whether most lines were so long that the next word had no room in the cell, or go on in lower case.
    bool isMostlyWrapped(const BandCell& cell) const {
        const double right = m_grid.boxOf(m_grid.cells[cell.cell]).right;
        int wrapped = 0;
        for (std::size_t i = 1; i < cell.pieces.size(); ++i) {
            const TextPiece& piece = cell.pieces[i];
            const Word& word = m_lines[piece.line].words[piece.firstWord];
            const double room = right - m_parameters.textMargin - cell.pieces[i - 1].box.right;
            const char first = word.spans.front().text.empty() ? 0 : word.spans.front().text.front();
            wrapped +=
                word.box.width() + m_parameters.blankWidth * piece.fontSize > room || (first >= 'a' && first <= 'z');
        }
        return 2 * wrapped > static_cast<int>(cell.pieces.size()) - 1;
    }

    /// Dashes alone, and letters between them, are a line that is drawn with them.
    bool isColumnOfNumbers(const std::vector<TextPiece>& pieces) const {
        const auto isNumber = [&](const TextPiece& piece) {
            return isNumeric(piece, m_lines) && !isDash(textOf(piece, m_lines));
        };
        if (std::none_of(pieces.begin(), pieces.end(), isNumber))
            return false;
        const auto numbers = std::count_if(pieces.begin(), pieces.end(),
                                           [&](const TextPiece& piece) { return isNumeric(piece, m_lines); });
        return static_cast<double>(numbers) >= m_parameters.numberedShare * static_cast<double>(pieces.size());
    }

    TextRows rowsOf(const std::vector<PieceRow>& rows) const {
        const auto parted =
            std::count_if(rows.begin(), rows.end(), [&](const PieceRow& row) { return columnCount(row) >= 2; });
        if (static_cast<double>(parted) < m_parameters.filledRowShare * static_cast<double>(rows.size()))
            return {};
        return rowsOf(rows,
                      groupRows(rows, edgesAsGaps(rows.front().fontSize), m_lines, {}, RowsPart::Any, m_parameters));
    }

    static TextRows rowsOf(const std::vector<PieceRow>& rows, const std::vector<RowGroup>& groups) {
        TextRows found;
        Rect above;
        for (const RowGroup& group : groups) {
            Rect box;
            found.firstBaselines.push_back(rows[group.first].baseline);
            for (std::size_t i = group.first; i < group.end; ++i) {
                box = box.united(rows[i].box);
                found.baselines.push_back(rows[i].baseline);
            }
            if (group.first > 0)
                found.tops.push_back((above.bottom + box.top) / 2);
            above = box;
        }
        return found;
    }

    std::size_t columnCount(const PieceRow& row) const {
        std::vector<int> columns;
        for (const TextPiece& piece : row.pieces)
            columns.push_back(intervalAt(m_grid.columnEdges, piece.box.centerX()));
        std::sort(columns.begin(), columns.end());
        return static_cast<std::size_t>(std::unique(columns.begin(), columns.end()) - columns.begin());
    }

    /// The drawn edges as gaps wide enough for texts that reach a little over them.
    std::vector<ColumnGap> edgesAsGaps(double fontSize) const {
        const double slack = m_parameters.straddle * fontSize;
        std::vector<ColumnGap> gaps;
        for (std::size_t i = 1; i + 1 < m_grid.columnEdges.size(); ++i)
            gaps.push_back({m_grid.columnEdges[i] - slack, m_grid.columnEdges[i] + slack});
        return gaps;
    }

    const TableGrid& m_grid;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
};

/// Whether a cell is parted with the rows: its lines stand in rows, and it is no label beside all of them.
bool followsRows(const BandCell& cell, const TextRows& rows, const TableParameters::Tables& parameters) {
    if (cell.isListing)
        return true;
    const std::vector<PieceRow> texts = groupIntoRows(cell.pieces, parameters);
    return texts.size() > 1 && std::all_of(texts.begin(), texts.end(), [&](const PieceRow& text) {
               return std::any_of(rows.baselines.begin(), rows.baselines.end(), [&](double baseline) {
                   return std::abs(baseline - text.baseline) <= parameters.rowSnap * text.fontSize;
               });
           });
}

} // namespace

TableGrid partAtTextRows(const TableGrid& grid, const std::vector<Line>& lines,
                         const TableParameters::Tables& parameters) {
    std::vector<std::vector<BandCell>> bands(static_cast<std::size_t>(grid.rows()));
    std::vector<std::vector<TextPiece>> pieces = piecesByCell(lines, grid, parameters);
    const bool arePaired = areLinesPaired(grid, pieces, lines, parameters);
    for (std::size_t i = 0; i < grid.cells.size(); ++i)
        if (grid.cells[i].rowSpan == 1)
            bands[static_cast<std::size_t>(grid.cells[i].row)].push_back({i, std::move(pieces[i]), false});

    const BandReader reader(grid, lines, parameters);
    std::vector<std::vector<double>> edges;
    std::vector<char> isParted(grid.cells.size(), 0);
    for (std::vector<BandCell>& band : bands) {
        TextRows rows = reader.read(band);
        if (rows.tops.empty() && arePaired)
            rows = reader.readLines(band);
        for (const BandCell& cell : band)
            isParted[cell.cell] = !rows.tops.empty() && followsRows(cell, rows, parameters);
        edges.push_back(std::move(rows.tops));
    }
    return partRows(grid, edges, isParted);
}

} // namespace orvane::layout
