#include "layout/assembly/BlockPlace.h"

#include "layout/fonts/LineMetrics.h"

namespace orvane::layout {
namespace {

/// What a border adds to the height of its paragraph. Units: points.
double heightOf(const document::Border& border) {
    return border.kind == document::BorderKind::None ? 0 : border.spacePoints + border.width.value / 8.0;
}

} // namespace

void measureLines(AssembledBlock& block, const AssemblyContext& context) {
    const DraftParagraph* draft = block.draftParagraph();
    if (!draft)
        return;
    const document::LineSpacing& spacing = block.paragraph()->properties.lineSpacing;
    const LineExtent first = extentOf(draft->firstLine(), draft->pieces.front().page, context.fonts);
    const LineExtent last = extentOf(draft->lastLine(), draft->pieces.back().page, context.fonts);
    block.top = draft->firstLine().baseline - spacedExtent(first, spacing).ascent;
    block.bottom = draft->lastLine().baseline + spacedExtent(last, spacing).descent;
    const document::Borders& borders = block.paragraph()->properties.borders;
    block.top -= heightOf(borders.top);
    block.bottom += heightOf(borders.bottom);
}

bool standsBelow(const AssembledBlock& lower, const AssembledBlock& upper) {
    return upper.lastPage == lower.draft->page && lower.top > upper.top;
}

bool hasNoPlace(const AssembledBlock& block) {
    return !block.draft || std::holds_alternative<document::Figure>(block.block.value) ||
           std::holds_alternative<document::Frame>(block.block.value);
}

} // namespace orvane::layout
