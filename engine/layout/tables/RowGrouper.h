#pragma once

#include "layout/tables/BorderLines.h"
#include "layout/tables/ColumnGaps.h"

#include <vector>

namespace orvane::layout {

/// The rows of text [first, end) that are one row of a table.
struct RowGroup {
    std::size_t first = 0;
    std::size_t end = 0;
};

/// What is known of rows of text before they are joined.
enum class RowsPart {
    Any,  ///< the rows before the first numbers may be the head of the table
    Head, ///< a rule parts them from the rows below
};

/// Joins rows of text into rows of a table: a row that holds only the rest of texts which the row above began belongs
/// to it. Lines of a head belong together where one of them has texts in all columns of the other. What one of the
/// `rules` parts stays apart.
std::vector<RowGroup> groupRows(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps,
                                const std::vector<Line>& lines, const std::vector<BorderLine>& rules, RowsPart part,
                                const TableParameters::Tables& parameters);

} // namespace orvane::layout
