#pragma once

#include "layout/LayoutParameters.h"
#include "layout/fonts/FontCatalog.h"
#include "layout/structure/DocumentDraft.h"

#include <limits>
#include <vector>

namespace orvane::layout {

/// How far the blocks of one page fill it, and what the next page starts with. Units: points.
struct PageFill {
    double top = 0;
    double bottom = 0;
    double flowTop = std::numeric_limits<double>::infinity(); ///< of the text and tables on it
    double topSlack = 0;                                      ///< what line spacing may add above its first line
    bool isEmpty = true;
    bool isSplit = false;       ///< a paragraph or table goes on from the page before
    bool showsTop = false;      ///< likewise, and nothing but the margin stands above it
    std::size_t firstBlock = 0; ///< that starts on the page; index into the blocks
    bool hasFirstBlock = false;
    double gap = 0;      ///< what mostly stands between such blocks as the page's first and the one before it
    double need = 0;     ///< of room for the first thing on the page, so much that it may start on the page before
    double startTop = 0; ///< of what the page starts with; of its highest text or table if it starts with these
    double room = 0;     ///< between the text and the notes at the page's foot, which show its margin; 0 without notes
};

/// Measures every page of the draft.
std::vector<PageFill> measurePages(const DocumentDraft& draft, const FontCatalog& fonts,
                                   const LayoutParameters& parameters);

} // namespace orvane::layout
