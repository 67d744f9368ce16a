#include "layout/assembly/BlockPlace.h"

#include "layout/fonts/LineMetrics.h"

namespace orvane::layout {

void measureLines(AssembledBlock& block, const AssemblyContext& context) {
    const DraftParagraph* draft = block.draftParagraph();
    if (!draft)
        return;
    const document::LineSpacing& spacing = block.paragraph()->properties.lineSpacing;
    const LineExtent first = extentOf(draft->firstLine(), draft->pieces.front().page, context.fonts);
    const LineExtent last = extentOf(draft->lastLine(), draft->pieces.back().page, context.fonts);
    block.top = draft->firstLine().baseline - spacedExtent(first, spacing).ascent;
    block.bottom = draft->lastLine().baseline + spacedExtent(last, spacing).descent;
}

bool standsBelow(const AssembledBlock& lower, const AssembledBlock& upper) {
    return upper.lastPage == lower.draft->page && lower.top > upper.top;
}

bool hasNoPlace(const AssembledBlock& block) {
    return !block.draft || std::holds_alternative<document::Figure>(block.block.value) ||
           std::holds_alternative<document::Frame>(block.block.value);
}

} // namespace orvane::layout
