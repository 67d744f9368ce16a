#pragma once

#include "layout/tables/TextPiece.h"

namespace orvane::layout {

/// Whether the row is the first line of a table's caption, "Table 12. Exports": the word for a table in one of the
/// languages of Europe, and a number. No table goes on below the caption of the next.
bool isTableCaption(const PieceRow& row, const std::vector<Line>& lines);

} // namespace orvane::layout
