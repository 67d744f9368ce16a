#pragma once

#include "layout/tables/ColumnGaps.h"

#include <vector>

namespace orvane::layout {

/// The rows of text [first, end) that are one row of a table.
struct RowGroup {
    std::size_t first = 0;
    std::size_t end = 0;
};

/// Joins rows of text into rows of a table: a row that holds only the rest of texts which the row above began belongs
/// to it.
std::vector<RowGroup> groupRows(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps,
                                const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
