#pragma once

#include "layout/tables/ColumnGaps.h"

namespace orvane::layout {

/// Whether the text is a label in bold that ends with a colon, and behind it a value that is not bold.
bool isField(const TextPiece& piece, const std::vector<Line>& lines);

/// Whether the rows are fields side by side in two columns or more, the further lines of their values among them.
bool areFields(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters);

} // namespace orvane::layout
