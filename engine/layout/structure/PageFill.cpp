#include "layout/structure/PageFill.h"

#include "layout/fonts/LineMetrics.h"
#include "layout/structure/BlockExtent.h"
#include "layout/structure/PageFloor.h"
#include "layout/support/Tally.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace orvane::layout {
namespace {

using document::LineSpacing;

void widen(PageFill& fill, double top, double bottom) {
    fill.top = fill.isEmpty ? top : std::min(fill.top, top);
    fill.bottom = fill.isEmpty ? bottom : std::max(fill.bottom, bottom);
    fill.isEmpty = false;
}

/// How far the borders above a row reach beyond the line that they are drawn on.
double reachOfTopBorders(const DraftTable& table, int row) {
    double reach = 0;
    for (const DraftCell& cell : table.cells)
        if (cell.cell.row == row && cell.cell.borders.top.kind != document::BorderKind::None)
            reach = std::max(reach, cell.cell.borders.top.width.value / 16.0);
    return reach;
}

/// A picture may hang above the text area, so it does not tell where the page's flow starts.
void widenByObject(std::vector<PageFill>& fills, const DraftBlock& block) {
    PageFill& fill = fills[block.page];
    widen(fill, block.box.top, block.box.bottom);
    const auto* table = std::get_if<DraftTable>(&block.value);
    if (!table)
        return;
    fill.flowTop = std::min(fill.flowTop, block.box.top);
    for (const DraftTablePart& part : table->furtherParts) {
        PageFill& further = fills[part.page];
        further.isSplit = further.isSplit || further.isEmpty;
        // Where nothing is drawn a row's upper edge is only guessed.
        further.showsTop = further.isSplit && table->table.isRuled;
        const double top = part.box.top - reachOfTopBorders(*table, part.firstRow);
        widen(further, top, part.box.bottom);
        further.flowTop = std::min(further.flowTop, top);
    }
}

/// The room that the first lines of a piece need.
double needOfLines(const DraftPiece& piece, std::size_t lines, const FontCatalog& fonts) {
    const std::vector<Line>& all = piece.text.lines;
    const std::size_t count = std::min(lines, all.size());
    return all[count - 1].baseline - all[0].baseline + extentOf(all[0], piece.page, fonts).height();
}

void widenByText(std::vector<PageFill>& fills, const DraftParagraph& paragraph, const FontCatalog& fonts,
                 const LineSpacing& spacing) {
    for (const DraftPiece& piece : paragraph.pieces) {
        const Line& first = piece.text.lines.front();
        const Line& last = piece.text.lines.back();
        PageFill& part = fills[piece.page];
        if (&piece != &paragraph.pieces.front() && part.isEmpty) {
            part.isSplit = part.showsTop = true;
            part.need = needOfLines(piece, piece.text.lines.size() <= kKeptLines ? kKeptLines : 1, fonts);
        }
        const LineExtent natural = extentOf(first, piece.page, fonts);
        const double top = first.baseline - spacedExtent(natural, spacing).ascent;
        widen(part, top, last.baseline + extentOf(last, piece.page, fonts).descent);
        if (top < part.flowTop)
            part.topSlack = std::max(0.0, piece.text.leading - natural.height());
        part.flowTop = std::min(part.flowTop, top);
    }
}

void addNotes(PageFill& fill, const Rect& notes) {
    fill.room = std::max(0.0, notes.top - fill.bottom);
    fill.bottom = std::max(fill.bottom, notes.bottom);
}

/// The spacing of most lines; single lines, which show none, are taken to have it too.
LineSpacing usualSpacing(const DocumentDraft& draft, const FontCatalog& fonts, const LayoutParameters& parameters) {
    Tally<LineSpacing> spacings;
    for (const DraftBlock& block : draft.blocks)
        if (const DraftParagraph* paragraph = block.paragraph())
            if (const auto spacing = lineSpacingOf(*paragraph, fonts, parameters))
                spacings.add(*spacing, static_cast<double>(paragraph->pieces.front().text.lines.size()));
    const LineSpacing* usual = spacings.heaviest();
    return usual ? *usual : LineSpacing{};
}

/// The room that a block needs to start, with what may not be parted from it.
double needOfBlock(const DocumentDraft& draft, std::size_t index, const FontCatalog& fonts) {
    const DraftBlock& block = draft.blocks[index];
    const DraftParagraph* paragraph = block.paragraph();
    if (!paragraph)
        return extentOf(block, fonts).firstHeight;
    const std::size_t lines = paragraph->pieces.front().text.lines.size();
    double need = needOfLines(paragraph->pieces.front(), linesToStart(lines), fonts);
    const bool isKept = paragraph->role == ParagraphRole::Heading || paragraph->role == ParagraphRole::Title;
    if (isKept && index + 1 < draft.blocks.size() && draft.blocks[index + 1].page == block.page) {
        const double gap = extentOf(draft.blocks[index + 1], fonts).top - extentOf(block, fonts).bottom;
        need += std::max(0.0, gap) + needOfBlock(draft, index + 1, fonts);
    }
    return need;
}

/// What a block is to the one before it.
using Kind = std::pair<std::size_t, int>;

Kind kindOf(const DraftBlock& block) {
    const DraftParagraph* paragraph = block.paragraph();
    return {block.value.index(), paragraph ? static_cast<int>(paragraph->role) * 10 + paragraph->level : 0};
}

/// The gaps between blocks that stand one below the other, by what both are.
class UsualGaps {
public:
    UsualGaps(const DocumentDraft& draft, const FontCatalog& fonts) {
        const DraftBlock* upper = nullptr;
        for (const DraftBlock& lower : draft.blocks) {
            if (isFloating(lower))
                continue;
            if (upper) {
                const BlockExtent above = extentOf(*upper, fonts), below = extentOf(lower, fonts);
                if (above.lastPage == lower.page && below.top > above.lastTop)
                    m_gaps[{kindOf(*upper), kindOf(lower)}].push_back(std::max(0.0, below.top - above.bottom));
            }
            upper = &lower;
        }
        for (auto& [kinds, gaps] : m_gaps)
            std::sort(gaps.begin(), gaps.end());
    }

    /// A gap that three in four have; 0 where there is none to learn from.
    double between(const DraftBlock& upper, const DraftBlock& lower) const {
        const auto found = m_gaps.find({kindOf(upper), kindOf(lower)});
        return found == m_gaps.end() ? 0 : found->second[found->second.size() / 4];
    }

private:
    std::map<std::pair<Kind, Kind>, std::vector<double>> m_gaps;
};

/// Sets the gap above the blocks that pages start with.
void findGaps(std::vector<PageFill>& fills, const DocumentDraft& draft, const FontCatalog& fonts) {
    const UsualGaps gaps(draft, fonts);
    const DraftBlock* upper = nullptr;
    for (std::size_t i = 0; i < draft.blocks.size(); ++i) {
        const DraftBlock& lower = draft.blocks[i];
        if (isFloating(lower))
            continue;
        PageFill& fill = fills[lower.page];
        if (upper && !fill.isSplit && fill.firstBlock == i)
            fill.gap = gaps.between(*upper, lower);
        upper = &lower;
    }
}

/// Sets where the pages start. A page with a picture above what goes on from the page before does not show its top.
void findStarts(std::vector<PageFill>& fills, const DocumentDraft& draft) {
    for (PageFill& fill : fills) {
        const bool startsWithPicture =
            fill.hasFirstBlock && std::holds_alternative<FigureDraft>(draft.blocks[fill.firstBlock].value);
        fill.startTop = startsWithPicture || !std::isfinite(fill.flowTop) ? fill.top : fill.flowTop;
    }
    for (const DraftBlock& block : draft.blocks) {
        const auto* figure = std::get_if<FigureDraft>(&block.value);
        if (figure && !figure->figure.isBackground && block.box.bottom <= fills[block.page].flowTop)
            fills[block.page].showsTop = false;
    }
}

} // namespace

std::vector<PageFill> measurePages(const DocumentDraft& draft, const FontCatalog& fonts,
                                   const LayoutParameters& parameters) {
    std::vector<PageFill> fills(draft.pages.size());
    const LineSpacing usual = usualSpacing(draft, fonts, parameters);
    for (std::size_t i = 0; i < draft.blocks.size(); ++i) {
        const DraftBlock& block = draft.blocks[i];
        if (isFloating(block))
            continue;
        PageFill& fill = fills[block.page];
        if (fill.isEmpty && !fill.hasFirstBlock)
            fill.need = needOfBlock(draft, i, fonts);
        if (!fill.hasFirstBlock)
            fill.firstBlock = i;
        fill.hasFirstBlock = true;
        const DraftParagraph* paragraph = block.paragraph();
        if (!paragraph) {
            widenByObject(fills, block);
            continue;
        }
        widenByText(fills, *paragraph, fonts, lineSpacingOf(*paragraph, fonts, parameters).value_or(usual));
    }
    for (std::size_t i = 0; i < draft.noteAreas.size(); ++i)
        if (!draft.noteAreas[i].isEmpty() && !fills[i].isEmpty)
            addNotes(fills[i], draft.noteAreas[i]);
    findStarts(fills, draft);
    findGaps(fills, draft, fonts);
    return fills;
}

} // namespace orvane::layout
