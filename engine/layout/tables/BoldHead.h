#pragma once

#include "layout/tables/TextPiece.h"

#include <span>

namespace orvane::layout {

/// Whether the first row alone is bold: a word or two over each of the columns, not the same over all.
bool hasBoldHead(std::span<const PieceRow> rows, std::size_t columnCount, const std::vector<Line>& lines,
                 const TableParameters::Tables& parameters);

} // namespace orvane::layout
