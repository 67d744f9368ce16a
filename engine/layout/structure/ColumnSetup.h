#pragma once

#include "layout/structure/DocumentDraft.h"
#include "layout/structure/StructureParameters.h"

#include <vector>

namespace orvane::layout {

/// How the lines of a column end.
enum class ColumnLines : std::uint8_t {
    Wrapped,     ///< some at the column's edge
    EndedByHand, ///< all of them, at the start edge: nothing shows how wide the column is
};

/// How the lines of a paragraph's piece end.
ColumnLines linesOf(const DraftParagraph& paragraph, const DraftPiece& piece);

/// What was seen of a column.
struct SeenColumn {
    ColumnSpan span;
    ColumnLines lines = ColumnLines::Wrapped;
};

/// The columns of a section, in reading order, from what was seen of them on the pages: columns of equal width if those
/// explain where the lines start. Lines ended by hand get the room up to the next column, for a word processor's
/// letters may be wider. `area` is what the page's margins leave.
std::vector<ColumnSpan> fitColumns(const std::vector<SeenColumn>& seen, const Rect& area,
                                   const StructureParameters::PageSetup& parameters);

/// The same columns as the document model has them.
std::vector<document::Column> columnWidths(std::vector<ColumnSpan> columns);

} // namespace orvane::layout
