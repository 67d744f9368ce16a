#pragma once

#include "layout/structure/DocumentDraft.h"
#include "pdf/PdfDocument.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// How much of an outline was found in the text.
struct OutlineMatch {
    std::size_t entries = 0; ///< that lead to pages of the draft
    std::size_t found = 0;

    /// Most entries stand in the text word for word, so the outline was made of the document's headings.
    bool isTrustworthy() const { return found > 0 && 2 * found >= entries; }
};

/// Makes headings of the paragraphs that the outline's entries lead to and that read like them; their level is the
/// entry's depth. A heading that was taken for part of a longer paragraph, or for several, becomes one. Nothing is
/// changed when the outline is not trustworthy, or its levels have nothing to do with the numbers of its entries.
OutlineMatch matchOutline(DocumentDraft& draft, const std::vector<pdf::OutlineEntry>& outline);

} // namespace orvane::layout
