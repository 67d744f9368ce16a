#pragma once

#include "layout/tables/TextPiece.h"

namespace orvane::layout {

/// Whether the row is the first line of a table's caption, "Table 12. Exports": the word for a table in one of the
/// languages of Europe, and a number. No table goes on below the caption of the next.
bool isTableCaption(const PieceRow& row, const std::vector<Line>& lines);

/// Whether the caption of a table stands right above or below the box: "Table 12" alone in its line, or with a full
/// stop, a colon or a dash behind the number. A sentence may begin with "Table 12 shows" as well.
bool hasTableCaption(const Rect& box, const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
