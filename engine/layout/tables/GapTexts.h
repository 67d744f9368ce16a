#pragma once

#include "layout/tables/ColumnGaps.h"

namespace orvane::layout {

/// Narrows the gaps in which texts stand that belong to one side: the column at the other has a text of its own in the
/// same row, or is that of the labels. A short head in the middle of its column may miss all of the numbers below it.
/// Signs of currency that stand apart belong to their amounts.
void narrowToTexts(std::vector<ColumnGap>& gaps, std::span<const PieceRow> rows, const std::vector<Line>& lines);

} // namespace orvane::layout
