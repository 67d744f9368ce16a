#include "layout/assembly/BlockPlace.h"

#include "layout/fonts/LineMetrics.h"
#include "layout/structure/BlockExtent.h"

namespace orvane::layout {

void measureLines(AssembledBlock& block, const AssemblyContext& context) {
    const DraftParagraph* draft = block.draftParagraph();
    if (!draft)
        return;
    const document::LineSpacing& spacing = block.paragraph()->properties.lineSpacing;
    const LineExtent first = extentOf(draft->firstLine(), draft->pieces.front().page, context.fonts);
    const LineExtent last = extentOf(draft->lastLine(), draft->pieces.back().page, context.fonts);
    block.top = draft->firstLine().baseline - spacedExtent(first, spacing).ascent;
    block.lastTop = draft->lastLine().baseline - last.ascent;
    block.bottom = draft->lastLine().baseline + spacedExtent(last, spacing).descent;
    const document::Borders& borders = block.paragraph()->properties.borders;
    block.top -= heightOf(borders.top);
    block.bottom += heightOf(borders.bottom);
}

bool standsBelow(const AssembledBlock& lower, const AssembledBlock& upper) {
    return upper.lastPage == lower.draft->page && lower.top > upper.lastTop;
}

bool hasNoPlace(const AssembledBlock& block) {
    return !block.draft || isFloating(*block.draft) || std::holds_alternative<document::Figure>(block.block.value) ||
           std::holds_alternative<document::Frame>(block.block.value);
}

} // namespace orvane::layout
