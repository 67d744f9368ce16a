#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// The left and right edge between which the paragraphs of some pages are set.
struct TextEdges {
    double left = 0;
    double right = 0;
};

/// Reads the edges from the paragraphs of pages `firstPage` to `lastPage` (indices). The start edge is where paragraphs
/// begin; the end edge is seen in justified text, and else lies where the next word had no room, as a round margin.
/// Where tables are most of what the pages hold, they show the edges if the text starts far within them.
TextEdges findTextEdges(const DocumentDraft& draft, std::size_t firstPage, std::size_t lastPage,
                        const LayoutParameters& parameters);

} // namespace orvane::layout
