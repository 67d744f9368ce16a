#include "layout/structure/ParagraphJoiner.h"

#include "layout/structure/BlockExtent.h"
#include "layout/structure/ParagraphContinuation.h"

#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

/// What stands between two parts of a paragraph without ending it.
bool isPassedOver(const DraftBlock& block) {
    return std::holds_alternative<FigureDraft>(block.value) || isFloating(block);
}

/// True when the paragraph `next`, the first of its column or page, goes on with `last`.
bool goesOn(const DocumentDraft& draft, const DraftBlock& last, const DraftBlock& next, const DocumentContext& context,
            const LayoutParameters& parameters) {
    const DraftPiece& before = last.paragraph()->pieces.back();
    const DraftPiece& after = next.paragraph()->pieces.front();
    if (before.page == after.page)
        return !before.text.endsParagraph && !after.text.startsParagraph;
    if (before.text.endsParagraph || after.page != before.page + 1)
        return false;
    const ParagraphContext around{context.bodyFontSize, context.bodyLeading, draft.pages[before.page].fonts, {}};
    return runsOn({before.text, before.column}, {after.text, after.column}, around, parameters);
}

} // namespace

void joinParagraphs(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters) {
    std::vector<DraftBlock> joined;
    std::size_t last =
        0; // one behind the last paragraph among `joined`; 0 when something that is no picture came after it
    for (DraftBlock& block : draft.blocks) {
        const bool isParagraph = block.paragraph() != nullptr && !isFloating(block);
        if (isParagraph && last > 0 && goesOn(draft, joined[last - 1], block, context, parameters)) {
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
