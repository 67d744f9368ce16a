#pragma once

#include "document/Document.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// How the paragraph stands by itself: direction, alignment, indents, tab stops.
document::ParagraphProperties formatOf(const DraftParagraph& paragraph, const std::vector<DraftNumbering>& numberings,
                                       const LayoutParameters& parameters);

/// Points that the fullest line leaves free between its end and the edge of its column; less than 0 beyond the edge.
double roomBehind(const DraftPiece& piece);

} // namespace orvane::layout
