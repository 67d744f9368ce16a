#pragma once

#include "layout/fonts/FontCatalog.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// From where to where a block reaches in single spacing, as a word processor sets it; page space.
struct BlockExtent {
    double top = 0;           ///< on the page where it starts
    double lastTop = 0;       ///< of its last line, or of a table's last part, on the page where it ends
    double bottom = 0;        ///< on that page
    std::size_t lastPage = 0; ///< index into DocumentDraft::pages
    double firstHeight = 0;   ///< of what must find room for it to start: its first line, row or the whole picture
};

/// The place of a block's last piece.
struct BlockEnd {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    int band = 0;         ///< index into the page's bands
    int column = 0;
    double bottom = 0; ///< of its lines; page space
};

BlockEnd endOf(const DraftBlock& block);

BlockExtent extentOf(const DraftBlock& block, const FontCatalog& fonts);

/// What a border adds to the height of its paragraph; points.
double heightOf(const document::Border& border);

/// Pictures and lines of text that float take no room in the flow.
bool isFloating(const DraftBlock& block);

} // namespace orvane::layout
