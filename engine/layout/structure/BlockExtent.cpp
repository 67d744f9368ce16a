#include "layout/structure/BlockExtent.h"

#include "layout/fonts/LineMetrics.h"

namespace orvane::layout {

bool isFloating(const DraftBlock& block) {
    const auto* figure = std::get_if<FigureDraft>(&block.value);
    return figure && !figure->isInline;
}

BlockExtent extentOf(const DraftBlock& block, const FontCatalog& fonts) {
    if (const DraftParagraph* paragraph = block.paragraph()) {
        const std::size_t lastPage = paragraph->pieces.back().page;
        const LineExtent first = extentOf(paragraph->firstLine(), block.page, fonts);
        const LineExtent last = extentOf(paragraph->lastLine(), lastPage, fonts);
        return {paragraph->firstLine().baseline - first.ascent, paragraph->lastLine().baseline + last.descent, lastPage,
                first.height()};
    }
    double firstHeight = block.box.height();
    if (const auto* table = std::get_if<DraftTable>(&block.value); table && table->table.rowEdges.size() > 1)
        firstHeight = table->table.rowEdges[1] - table->table.rowEdges[0];
    return {block.box.top, block.box.bottom, block.page, firstHeight};
}

} // namespace orvane::layout
