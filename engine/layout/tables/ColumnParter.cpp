#include "layout/tables/ColumnParter.h"

#include "layout/tables/CellPieces.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// What rows of text say about an edge between two columns that is not drawn in their cell.
struct EdgeEvidence {
    int parted = 0;  ///< rows with texts on both sides
    int crossed = 0; ///< rows with a text over it
    int cells = 0;   ///< with parted rows
};

class ColumnParter {
public:
    ColumnParter(const TableGrid& grid, const std::vector<Line>& lines, const TableParameters::Tables& parameters)
        : m_grid(grid)
        , m_parameters(parameters)
        , m_evidence(grid.columnEdges.size()) {
        const std::vector<std::vector<TextPiece>> pieces = piecesByCell(lines, grid, parameters);
        for (std::size_t i = 0; i < grid.cells.size(); ++i) {
            m_evidenceOfCell.push_back(askCell(grid.cells[i], pieces[i]));
            for (std::size_t edge = 0; edge < m_evidence.size(); ++edge) {
                m_evidence[edge].parted += m_evidenceOfCell[i][edge].parted;
                m_evidence[edge].crossed += m_evidenceOfCell[i][edge].crossed;
                m_evidence[edge].cells += m_evidenceOfCell[i][edge].parted > 0;
            }
        }
    }

    TableGrid part() const {
        TableGrid parted{m_grid.columnEdges, m_grid.rowEdges, {}};
        for (std::size_t i = 0; i < m_grid.cells.size(); ++i)
            partCell(m_grid.cells[i], m_evidenceOfCell[i], parted.cells);
        return parted;
    }

private:
    std::vector<EdgeEvidence> askCell(const GridCell& cell, const std::vector<TextPiece>& pieces) const {
        std::vector<EdgeEvidence> evidence(m_grid.columnEdges.size());
        if (cell.columnSpan < 2)
            return evidence;
        for (const PieceRow& row : groupIntoRows(pieces, m_parameters)) {
            for (int edge = cell.column + 1; edge < cell.column + cell.columnSpan; ++edge) {
                const double x = m_grid.columnEdges[static_cast<std::size_t>(edge)];
                const double slack = m_parameters.straddle * row.fontSize;
                const bool isCrossed = std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
                    return piece.box.left < x - slack && piece.box.right > x + slack;
                });
                EdgeEvidence& at = evidence[static_cast<std::size_t>(edge)];
                at.crossed += isCrossed;
                at.parted += !isCrossed && row.pieces.front().box.left < x && row.pieces.back().box.right > x;
            }
        }
        return evidence;
    }

    bool isColumnEdge(std::size_t edge) const {
        const EdgeEvidence& evidence = m_evidence[edge];
        // Fields side by side in one cell may keep to a column for a few lines.
        const bool isSeenOften =
            evidence.cells >= m_parameters.fewestPartedRows || evidence.parted >= 2 * m_parameters.fewestPartedRows;
        return isSeenOften && evidence.crossed <= m_parameters.crossedRowShare * evidence.parted;
    }

    /// A cell with one text alone stays whole: it may head all of its columns.
    void partCell(const GridCell& cell, const std::vector<EdgeEvidence>& evidence, std::vector<GridCell>& cells) const {
        const bool hasColumns =
            std::any_of(evidence.begin(), evidence.end(), [](const EdgeEvidence& at) { return at.parted > 0; });
        GridCell part = cell;
        for (int edge = cell.column + 1; hasColumns && edge < cell.column + cell.columnSpan; ++edge) {
            const auto at = static_cast<std::size_t>(edge);
            if (!isColumnEdge(at) || evidence[at].crossed > 0)
                continue;
            part.columnSpan = edge - part.column;
            cells.push_back(part);
            part.column = edge;
        }
        part.columnSpan = cell.column + cell.columnSpan - part.column;
        cells.push_back(part);
    }

    const TableGrid& m_grid;
    const TableParameters::Tables& m_parameters;
    std::vector<EdgeEvidence> m_evidence;                    ///< by column edge
    std::vector<std::vector<EdgeEvidence>> m_evidenceOfCell; ///< by cell, then column edge
};

} // namespace

TableGrid partAtColumns(const TableGrid& grid, const std::vector<Line>& lines,
                        const TableParameters::Tables& parameters) {
    return ColumnParter(grid, lines, parameters).part();
}

} // namespace orvane::layout
