#include "layout/structure/ParagraphJoiner.h"

#include "layout/structure/BlockExtent.h"
#include "layout/structure/PageFloor.h"
#include "layout/structure/ParagraphContinuation.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

/// What stands between two parts of a paragraph without ending it.
bool isPassedOver(const DraftBlock& block) {
    return std::holds_alternative<FigureDraft>(block.value) || isFloating(block);
}

/// How a page ends.
enum class PageEnd {
    Full,
    Open, ///< with more room than lines that stay together, or a picture in one, leave blank
    Hand, ///< so early that no text runs on from its last line
};

/// Lines that a page may leave blank below a paragraph that goes on behind it.
constexpr double kMostBlankLines = 12;

std::vector<PageEnd> findPageEnds(const DocumentDraft& draft, const DocumentContext& context) {
    std::vector<double> bottoms(draft.pages.size(), 0);
    for (const DraftBlock& block : draft.blocks)
        bottoms[block.page] = std::max(bottoms[block.page], block.box.bottom);
    for (std::size_t page = 0; page < draft.noteAreas.size(); ++page)
        bottoms[page] = std::max(bottoms[page], draft.noteAreas[page].bottom);
    std::vector<PageEnd> ends;
    for (std::size_t page = 0; page < draft.pages.size(); ++page) {
        const double height = draft.pages[page].height;
        const double full = std::min(context.textArea.bottom, height) - kMostBlankLines * context.bodyLeading;
        ends.push_back(isHalfEmpty(bottoms[page], height) ? PageEnd::Hand
                       : bottoms[page] <= full            ? PageEnd::Open
                                                          : PageEnd::Full);
    }
    return ends;
}

/// Columns side by side hold one text where they are alike; a narrow one beside a wide one has a text of its own.
constexpr double kLikeWidths = 0.75; // of the wider one

bool areUnlikeColumns(const DraftPiece& before, const DraftPiece& after) {
    if (before.band != after.band || before.columnIndex == after.columnIndex)
        return false;
    const double first = before.column.right - before.column.left;
    const double second = after.column.right - after.column.left;
    return std::min(first, second) < kLikeWidths * std::max(first, second);
}

/// True when the paragraph `next`, the first of its column or page, goes on with `last`.
bool goesOn(const DocumentDraft& draft, const DraftBlock& last, const DraftBlock& next, const DocumentContext& context,
            const LayoutParameters& parameters) {
    const DraftPiece& before = last.paragraph()->pieces.back();
    const DraftPiece& after = next.paragraph()->pieces.front();
    if (before.page == after.page)
        return !before.text.endsParagraph && !after.text.startsParagraph && !areUnlikeColumns(before, after);
    if (before.text.endsParagraph || after.page != before.page + 1)
        return false;
    const ParagraphContext around{context.bodyFontSize, context.bodyLeading, draft.pages[before.page].fonts, {}};
    return runsOn({before.text, before.column}, {after.text, after.column}, around, parameters);
}

} // namespace

void joinParagraphs(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters) {
    const std::vector<PageEnd> ends = findPageEnds(draft, context);
    const auto mayGoOn = [&](const DraftBlock& before, const DraftBlock& next) {
        const std::size_t page = before.paragraph()->pieces.back().page;
        return page == next.page || ends[page] == PageEnd::Full ||
               (ends[page] == PageEnd::Open && isLowerCase(firstCharacterOf(next.paragraph()->firstLine())));
    };
    std::vector<DraftBlock> joined;
    std::size_t last =
        0; // one behind the last paragraph among `joined`; 0 when something that is no picture came after it
    for (DraftBlock& block : draft.blocks) {
        const bool isParagraph = block.paragraph() != nullptr && !isFloating(block);
        if (isParagraph && last > 0 && mayGoOn(joined[last - 1], block) &&
            goesOn(draft, joined[last - 1], block, context, parameters)) {
            std::vector<DraftPiece>& pieces = joined[last - 1].paragraph()->pieces;
            std::vector<DraftPiece>& more = block.paragraph()->pieces;
            pieces.insert(pieces.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
            continue;
        }
        const bool endsParagraph = !isPassedOver(block);
        joined.push_back(std::move(block));
        if (isParagraph)
            last = joined.size();
        else if (endsParagraph)
            last = 0;
    }
    draft.blocks = std::move(joined);
}

} // namespace orvane::layout
