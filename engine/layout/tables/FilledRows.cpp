#include "layout/tables/FilledRows.h"

#include <set>

namespace orvane::layout {

FilledRows::FilledRows(std::span<const PieceRow> rows, const TableParameters::Tables& parameters)
    : m_rowCount(rows.size())
    , m_mostRows(static_cast<std::size_t>(parameters.maximumHeaderRows)) {
    for (const PieceRow& row : rows) {
        std::set<int> cells;
        for (const TextPiece& piece : row.pieces)
            cells.insert(piece.filledCell);
        for (const int cell : cells)
            ++m_rowsOfCell[cell];
    }
}

FilledVerdict FilledRows::compare(const RowContent& above, const RowContent& below) const {
    FilledVerdict result = FilledVerdict::Unknown;
    for (const auto& [column, piece] : below.byColumn) {
        const auto over = above.byColumn.find(column);
        if (piece->filledCell < 0 || over == above.byColumn.end() || over->second->filledCell < 0)
            continue;
        if (over->second->filledCell != piece->filledCell) {
            result = FilledVerdict::Other;
            continue;
        }
        const std::size_t rows = m_rowsOfCell.at(piece->filledCell);
        if (rows < m_rowCount && rows <= m_mostRows)
            return FilledVerdict::Same;
    }
    return result;
}

} // namespace orvane::layout
