#pragma once

#include "document/Document.h"
#include "layout/DocumentDraft.h"
#include "layout/FontCatalog.h"
#include "layout/LayoutParameters.h"

namespace orvane::layout {

/// How the paragraph stands by itself: alignment, indents, tab stops, line spacing. Space to its neighbours is
/// SpacingFinder's.
document::ParagraphProperties formatOf(const DraftParagraph& paragraph, const FontCatalog& fonts,
                                       const document::LineSpacing& usualSpacing, const LayoutParameters& parameters);

} // namespace orvane::layout
