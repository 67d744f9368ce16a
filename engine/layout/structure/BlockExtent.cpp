#include "layout/structure/BlockExtent.h"

#include "layout/fonts/LineMetrics.h"

namespace orvane::layout {

double heightOf(const document::Border& border) {
    if (border.kind == document::BorderKind::None)
        return 0;
    const int lines = border.kind == document::BorderKind::Double ? 3 : 1; // two and the gap between them
    return border.spacePoints + lines * border.width.value / 8.0;
}

bool isFloating(const DraftBlock& block) {
    if (const DraftParagraph* paragraph = block.paragraph())
        return paragraph->pieces.front().text.isFloating;
    const auto* figure = std::get_if<FigureDraft>(&block.value);
    return figure && !figure->isInline;
}

BlockEnd endOf(const DraftBlock& block) {
    if (const DraftParagraph* paragraph = block.paragraph()) {
        const DraftPiece& last = paragraph->pieces.back();
        return {last.page, last.band, last.columnIndex, last.text.lines.back().box.bottom};
    }
    const auto* table = std::get_if<DraftTable>(&block.value);
    if (table && !table->furtherParts.empty())
        return {table->furtherParts.back().page, 0, 0, table->furtherParts.back().box.bottom};
    return {block.page, block.band, block.column, block.box.bottom};
}

BlockExtent extentOf(const DraftBlock& block, const FontCatalog& fonts) {
    if (const DraftParagraph* paragraph = block.paragraph()) {
        const std::size_t lastPage = paragraph->pieces.back().page;
        const LineExtent first = extentOf(paragraph->firstLine(), block.page, fonts);
        const LineExtent last = extentOf(paragraph->lastLine(), lastPage, fonts);
        const double lastBaseline = paragraph->lastLine().baseline;
        return {paragraph->firstLine().baseline - first.ascent, lastBaseline - last.ascent, lastBaseline + last.descent,
                lastPage, first.height()};
    }
    BlockExtent extent{block.box.top, block.box.top, block.box.bottom, block.page, block.box.height()};
    const auto* table = std::get_if<DraftTable>(&block.value);
    if (table && table->table.rowEdges.size() > 1)
        extent.firstHeight = table->table.rowEdges[1] - table->table.rowEdges[0];
    if (table && !table->furtherParts.empty()) {
        extent.lastPage = table->furtherParts.back().page;
        extent.lastTop = table->furtherParts.back().box.top;
        extent.bottom = table->furtherParts.back().box.bottom;
    }
    return extent;
}

} // namespace orvane::layout
