#pragma once

#include "layout/tables/ColumnGaps.h"

namespace orvane::layout {

/// Finds columns that stand so close together that the space between their texts is that of words, and cuts the pieces
/// of `rows` there. What tells them is that the right one always begins at one place: behind texts of different length
/// that leave more space in some rows, or behind texts that all end at one place, as numbers do. Gives the gaps between
/// such columns, left to right. Text that is read from the right is left as it is.
std::vector<ColumnGap> cutAtTightGaps(std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                                      const TableParameters::Tables& parameters);

} // namespace orvane::layout
