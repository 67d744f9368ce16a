#pragma once

#include "layout/tables/ColumnGaps.h"

namespace orvane::layout {

/// Cuts pieces of the rows that run over a gap, where it lies between two of their words and these are such as stand in
/// two cells: numbers, words with more than a blank between them, or words of which the one ends or the other begins
/// where its column does.
void cutAtGaps(std::vector<PieceRow>& rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters);

} // namespace orvane::layout
