#pragma once

#include "layout/tables/ColumnGaps.h"

namespace orvane::layout {

/// Finds columns of numbers with no more than a blank between the longest ones, and cuts the pieces of `rows` there:
/// the left numbers all end at one place, and the right ones are of different length, as the thousands of a number are
/// not, or have heads of their own; or the numbers of both are of different length and centred. Gives the gaps between
/// such columns, left to right.
std::vector<ColumnGap> cutAtCloseNumbers(std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                                         const TableParameters::Tables& parameters);

} // namespace orvane::layout
