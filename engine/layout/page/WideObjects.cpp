#include "layout/page/WideObjects.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

/// Where a block stands to the lines of its band's columns.
enum class Side : std::int8_t { Above, Within, Below };

/// Empty for paragraphs and what floats.
Rect boxInFlow(const PageBlock& block) {
    if (const auto* table = std::get_if<TableDraft>(&block.value))
        return table->box;
    const auto* figure = std::get_if<FigureDraft>(&block.value);
    return figure && figure->isInline ? figure->figure.box : Rect{};
}

/// Where a table or picture in the flow that leads across the columns of its band stands to their lines.
Side sideOfColumns(const PageBlock& block, const Band& band, double slack, double acrossShare) {
    const Rect box = boxInFlow(block);
    const bool isAbove = box.bottom <= band.top + slack;
    if (box.isEmpty() || band.columns.size() < 2 || (!isAbove && box.top < band.bottom - slack))
        return Side::Within;
    const auto covered = std::count_if(band.columns.begin(), band.columns.end(), [&](const ColumnSpan& column) {
        return overlap(box.left, box.right, column.left, column.right) >= acrossShare * (column.right - column.left);
    });
    return covered < 2 ? Side::Within : isAbove ? Side::Above : Side::Below;
}

/// One column over all those of the block's band.
Band wideBand(const PageBlock& block, const Band& band) {
    const Rect box = boxInFlow(block);
    ColumnSpan span{box.left, box.right};
    for (const ColumnSpan& column : band.columns)
        span = {std::min(span.left, column.left), std::max(span.right, column.right)};
    return {box.top, box.bottom, {span}, false};
}

const Band& bandOf(const PageLayout& layout, const PageBlock& block) {
    return layout.bands[static_cast<std::size_t>(block.band)];
}

} // namespace

void partWideObjects(PageLayout& layout, double bodyFontSize, const PageParameters::ReadingOrder& parameters) {
    const double slack = parameters.bandSlack * bodyFontSize;
    const auto sideOf = [&](const PageBlock& block) {
        return sideOfColumns(block, bandOf(layout, block), slack, parameters.acrossShare);
    };
    std::vector<PageBlock>& blocks = layout.blocks;
    std::stable_sort(blocks.begin(), blocks.end(), [&](const PageBlock& a, const PageBlock& b) {
        return std::pair(a.band, sideOf(a)) < std::pair(b.band, sideOf(b));
    });
    std::vector<Side> sides;
    for (const PageBlock& block : blocks)
        sides.push_back(sideOf(block));
    if (std::all_of(sides.begin(), sides.end(), [](Side side) { return side == Side::Within; }))
        return;
    std::vector<Band> bands;
    for (std::size_t i = 0; i < blocks.size();) {
        const int band = blocks[i].band;
        std::optional<int> columns;
        for (; i < blocks.size() && blocks[i].band == band; ++i) {
            const bool isWide = sides[i] != Side::Within;
            if (isWide || !columns)
                bands.push_back(isWide ? wideBand(blocks[i], bandOf(layout, blocks[i])) : bandOf(layout, blocks[i]));
            const int last = static_cast<int>(bands.size()) - 1;
            if (!isWide && !columns)
                columns = last;
            blocks[i].band = isWide ? last : *columns;
            blocks[i].column = isWide ? 0 : blocks[i].column;
        }
    }
    layout.bands = std::move(bands);
}

} // namespace orvane::layout
