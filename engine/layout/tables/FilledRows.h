#pragma once

#include "layout/tables/RowContent.h"

#include <span>

namespace orvane::layout {

/// What the filled cells say of two rows of text.
enum class FilledVerdict {
    Same,  ///< they are one row of the table
    Other, ///< they are two
    Unknown
};

/// Compares rows of text by the filled cells that their texts stand in.
class FilledRows {
public:
    FilledRows(std::span<const PieceRow> rows, const TableParameters::Tables& parameters);

    /// Whether two rows one below the other have texts in one filled cell, or in two of one column. What is filled from
    /// top to bottom is a column, no cell.
    FilledVerdict compare(const RowContent& above, const RowContent& below) const;

private:
    std::size_t m_rowCount;
    std::size_t m_mostRows; ///< of one cell
    std::map<int, std::size_t> m_rowsOfCell;
};

} // namespace orvane::layout
