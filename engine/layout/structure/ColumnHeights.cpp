#include "layout/structure/ColumnHeights.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// Down to where the block reaches in the column that it begins in.
double bottomInColumn(const DraftBlock& block) {
    const DraftParagraph* paragraph = block.paragraph();
    if (!paragraph)
        return block.box.bottom;
    const DraftPiece& first = paragraph->pieces.front();
    return first.text.lines.back().box.bottom;
}

double bottomOfColumn(const DocumentDraft& draft, std::size_t first) {
    const DraftBlock& start = draft.blocks[first];
    double bottom = 0;
    for (std::size_t i = first; i < draft.blocks.size(); ++i) {
        const DraftBlock& block = draft.blocks[i];
        if (block.page != start.page || block.band != start.band || block.column != start.column)
            break;
        bottom = std::max(bottom, bottomInColumn(block));
    }
    return bottom;
}

} // namespace

bool hasTextBelow(const DocumentDraft& draft, const ColumnEnd& end) {
    return static_cast<std::size_t>(end.band) + 1 < draft.pages[end.page].bands.size();
}

double unevenness(const DocumentDraft& draft, const ColumnEnd& end, std::size_t next) {
    return std::abs(end.bottom - bottomOfColumn(draft, next));
}

} // namespace orvane::layout
