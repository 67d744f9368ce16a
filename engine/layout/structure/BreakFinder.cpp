#include "layout/structure/BreakFinder.h"

#include "layout/structure/BlockExtent.h"
#include "layout/structure/ColumnHeights.h"
#include "layout/structure/ColumnSetup.h"
#include "layout/structure/PageFloor.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::layout {
namespace {

/// Two tables in a row: what parts them on a full page has no room there that word processors agree on, so the second
/// one starts its page.
bool areTables(const DraftBlock& a, const DraftBlock& b) {
    return std::holds_alternative<DraftTable>(a.value) && std::holds_alternative<DraftTable>(b.value);
}

bool isHeading(const DraftBlock& block) {
    const DraftParagraph* paragraph = block.paragraph();
    return paragraph && (paragraph->role == ParagraphRole::Heading || paragraph->role == ParagraphRole::Title);
}

/// Whether the page that starts with `block` was started by hand, though `room` points were left above it.
bool wasStartedByHand(const DraftBlock& block, double room, const PageFill& fill, const BlockRange& range,
                      const StructureParameters::PageSetup& limits) {
    const bool isTypeset = range.making == PageMaking::Program;
    if (isTypeset && !isHeading(block))
        return room > fill.need + limits.floatRoom * range.area.box.height();
    const double gap = isTypeset ? fill.gap : 0; // people start pages where a line would have had room
    return room > fill.need + gap + limits.startRoom ||
           startsLow(fill, range.area.tops.of(block.page), range.making, limits);
}

/// A picture that has no room below a table, and goes to the next page by itself, is not shown by LibreOffice.
bool isPictureBelowTable(const DraftBlock& a, const DraftBlock& b) {
    return std::holds_alternative<DraftTable>(a.value) && std::holds_alternative<FigureDraft>(b.value);
}

/// The column that ends before a block.
struct ColumnText {
    bool isEndedByHand = true; ///< all of its lines: no text that flows from column to column, whatever their heights
    bool isOfOnePitch = true;  ///< its lines stand at even distances, as those of a list of words do
};

ColumnText columnBefore(const DocumentDraft& draft, std::size_t next, double pitchTolerance) {
    ColumnText column;
    const DraftBlock& last = draft.blocks[next - 1];
    std::vector<double> baselines;
    for (std::size_t i = next; i-- > 0;) {
        const DraftBlock& block = draft.blocks[i];
        if (block.page != last.page || block.band != last.band || block.column != last.column)
            break;
        const DraftParagraph* paragraph = block.paragraph();
        if (!paragraph)
            continue;
        const DraftPiece& piece = paragraph->pieces.front();
        column.isEndedByHand = column.isEndedByHand && linesOf(*paragraph, piece) != ColumnLines::Wrapped;
        for (auto line = piece.text.lines.rbegin(); line != piece.text.lines.rend(); ++line)
            baselines.push_back(line->baseline);
    }
    for (std::size_t i = 2; i < baselines.size(); ++i)
        if (std::abs((baselines[i - 1] - baselines[i]) - (baselines[0] - baselines[1])) > pitchTolerance)
            column.isOfOnePitch = false;
    return column;
}

/// Whether block `next` begins a column by hand: `room` points were left below the one before, or word processors,
/// which fill columns with text below them to one height, would begin it elsewhere: they even out lines that stand at
/// different distances in ways of their own. A table does not flow from column to column.
bool startsColumnByHand(const DocumentDraft& draft, const ColumnEnd& end, std::size_t next, double room,
                        const StructureParameters::PageSetup& limits) {
    const DraftBlock& block = draft.blocks[next];
    const double height = block.box.height();
    if (room > height + limits.startRoom)
        return true;
    if (!hasTextBelow(draft, end))
        return false;
    const ColumnText column = columnBefore(draft, next, limits.samePitch);
    if (std::holds_alternative<DraftTable>(block.value) || (column.isEndedByHand && !column.isOfOnePitch))
        return true;
    return unevenness(draft, end, next) > (column.isEndedByHand ? 0 : height) + limits.startRoom;
}

} // namespace

void markBreaks(DocumentDraft& draft, const std::vector<PageFill>& fills, const BlockRange& range,
                const StructureParameters::PageSetup& parameters) {
    const DraftBlock* before = nullptr;
    for (std::size_t i = range.first; i < range.last; ++i) {
        DraftBlock& block = draft.blocks[i];
        if (isFloating(block))
            continue;
        if (before) {
            const BlockEnd end = endOf(*before);
            const double room = floorOf(draft, end.page, end.band, range.area.box) - end.bottom;
            if (end.page < block.page)
                block.startsPage = end.page + 1 < block.page || areTables(*before, block) ||
                                   isPictureBelowTable(*before, block) ||
                                   wasStartedByHand(block, room, fills[block.page], range, parameters);
            else if (end.band == block.band && end.column < block.column)
                block.startsColumn = startsColumnByHand(draft, {end.page, end.band, end.bottom}, i, room, parameters);
        }
        before = &block;
    }
}

} // namespace orvane::layout
