#include "layout/page/FloatPlace.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

double gapBetween(double from, double to, double otherFrom, double otherTo) {
    return std::max({0.0, otherFrom - to, from - otherTo});
}

/// The paragraph of the flow nearest to the box.
std::optional<std::size_t> nearestParagraph(const std::vector<PageBlock>& blocks, const Rect& box) {
    std::optional<std::size_t> nearest;
    double distance = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const auto* paragraph = std::get_if<ParagraphDraft>(&blocks[i].value);
        if (!paragraph || paragraph->isFloating)
            continue;
        const Rect& text = paragraph->box;
        const double here = gapBetween(text.top, text.bottom, box.top, box.bottom) +
                            gapBetween(text.left, text.right, box.left, box.right);
        if (here < distance) {
            distance = here;
            nearest = i;
        }
    }
    return nearest;
}

/// The content of the cell that the box lies in; null for what lies over several or beside tables.
std::vector<PageBlock>* cellAround(std::vector<PageBlock>& blocks, const Rect& box, double reach) {
    for (PageBlock& block : blocks) {
        auto* table = std::get_if<TableDraft>(&block.value);
        if (!table)
            continue;
        for (CellDraft& cell : table->cells)
            if (cell.box.inflated(reach).contains(box))
                return &cell.blocks;
    }
    return nullptr;
}

} // namespace

void hangOnNearestParagraph(PageLayout& layout, Figure figure, const PageParameters::FreeDrawings& parameters) {
    if (std::vector<PageBlock>* cell = cellAround(layout.blocks, figure.box, parameters.cellReach)) {
        const auto place = static_cast<std::ptrdiff_t>(nearestParagraph(*cell, figure.box).value_or(0));
        cell->emplace(cell->begin() + place)->value = FigureDraft{std::move(figure), false};
        return;
    }
    const std::size_t place = nearestParagraph(layout.blocks, figure.box).value_or(0);
    PageBlock block;
    if (place < layout.blocks.size()) {
        block.band = layout.blocks[place].band;
        block.column = layout.blocks[place].column;
    }
    block.value = FigureDraft{std::move(figure), false};
    layout.blocks.insert(layout.blocks.begin() + static_cast<std::ptrdiff_t>(place), std::move(block));
}

} // namespace orvane::layout
