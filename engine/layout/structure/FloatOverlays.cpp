#include "layout/structure/FloatOverlays.h"

#include "layout/structure/BlockColumn.h"
#include "layout/structure/BlockExtent.h"

#include <algorithm>
#include <map>
#include <vector>

namespace orvane::layout {
namespace {

/// Something of the text that a word processor would move out of a figure's way.
struct Item {
    std::size_t page = 0;
    Rect box;
    ColumnSpan column;
    double leastWidth = 0; ///< points; text takes what there is
};

/// A figure that text makes way for, unless it is told not to.
bool isBesideText(const DraftBlock& block) {
    const auto* figure = std::get_if<FigureDraft>(&block.value);
    return figure && isFloating(block) && !figure->figure.isBackground;
}

/// The lines of the text, and what stands in it whole.
std::vector<Item> itemsOf(const DocumentDraft& draft, std::size_t first, std::size_t last) {
    std::vector<Item> items;
    for (std::size_t i = first; i < last; ++i) {
        const DraftBlock& block = draft.blocks[i];
        if (isFloating(block))
            continue;
        const DraftParagraph* paragraph = block.paragraph();
        if (!paragraph) {
            items.push_back({block.page, block.box, columnOf(block, draft), block.box.width()});
            continue;
        }
        for (const DraftPiece& piece : paragraph->pieces)
            for (const Line& line : piece.text.lines)
                items.push_back({piece.page, line.box, piece.column});
    }
    return items;
}

bool isOnEarlierPage(const Item& a, const Item& b) {
    return a.page < b.page;
}

bool isLevelWith(const Rect& box, const Rect& figure, const StructureParameters::Floats& limits) {
    const double height = overlap(box.top, box.bottom, figure.top, figure.bottom);
    return height >= limits.sharedHeight * std::min(box.height(), figure.height());
}

/// What a picture needs beside a figure so high that it would be moved far down; what fills its room exactly is moved,
/// too.
double leastRoomFor(const Item& item, const Rect& figure) {
    constexpr double kSlack = 2; // points
    return item.leastWidth > 0 && figure.height() > 2 * item.box.height() ? item.leastWidth + kSlack : 0;
}

/// Whether the item would have to make way for the figure, and could not stay where it is.
bool wouldMove(const Item& item, const Rect& figure, const StructureParameters::Floats& limits) {
    const Rect& box = item.box;
    if (standsOn(box, figure, limits))
        return true;
    if (!isLevelWith(box, figure, limits))
        return false;
    const double room =
        box.left >= figure.centerX() ? item.column.right - figure.right : figure.left - item.column.left;
    return room < std::max(limits.leastRoomBeside, leastRoomFor(item, figure));
}

} // namespace

bool standsOn(const Rect& text, const Rect& figure, const StructureParameters::Floats& parameters) {
    return isLevelWith(text, figure, parameters) &&
           overlap(text.left, text.right, figure.left, figure.right) > parameters.sharedWidth;
}

void findOverlaidFigures(DocumentDraft& draft, std::size_t first, std::size_t last,
                         const StructureParameters::Floats& parameters) {
    const auto begin = draft.blocks.begin();
    if (std::none_of(begin + static_cast<std::ptrdiff_t>(first), begin + static_cast<std::ptrdiff_t>(last),
                     isBesideText))
        return;
    std::vector<Item> items = itemsOf(draft, first, last);
    std::stable_sort(items.begin(), items.end(), isOnEarlierPage);
    std::map<std::size_t, std::size_t> floats; // by page
    for (std::size_t i = first; i < last; ++i)
        floats[draft.blocks[i].page] += isBesideText(draft.blocks[i]) ? 1 : 0;
    for (std::size_t i = first; i < last; ++i) {
        DraftBlock& block = draft.blocks[i];
        if (!isBesideText(block))
            continue;
        const auto [from, to] =
            std::equal_range(items.begin(), items.end(), Item{block.page, {}, {}, 0}, isOnEarlierPage);
        const std::size_t count = floats[block.page];
        auto& figure = std::get<FigureDraft>(block.value);
        // Text that can be seen stands before what it stands on.
        if (!figure.figure.isForeground &&
            std::any_of(from, to, [&](const Item& item) { return standsOn(item.box, block.box, parameters); })) {
            figure.isOverlaid = false;
            figure.figure.isBackground = true;
            continue;
        }
        figure.isOverlaid =
            figure.isOverlaid || (count >= parameters.fewestOfSlide && count >= static_cast<std::size_t>(to - from)) ||
            std::any_of(from, to, [&](const Item& item) { return wouldMove(item, block.box, parameters); });
    }
}

} // namespace orvane::layout
