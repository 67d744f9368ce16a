#include "layout/assembly/FigureAnchors.h"

#include "layout/structure/BlockExtent.h"

#include <algorithm>
#include <utility>
#include <variant>

namespace orvane::layout {
namespace {

document::Placement* placementOf(document::Block& block) {
    if (auto* figure = std::get_if<document::Figure>(&block.value))
        return &figure->placement;
    if (auto* frame = std::get_if<document::Frame>(&block.value))
        return &frame->placement;
    return nullptr;
}

bool takesNoRoom(const document::Placement& placement) {
    return placement.wrapping == document::Wrapping::BehindText || placement.wrapping == document::Wrapping::None;
}

/// The paragraph that what floats at `index` is written into.
const AssembledBlock* hostOf(const std::vector<AssembledBlock>& blocks, std::size_t index) {
    const std::size_t page = blocks[index].draft->page;
    for (std::size_t i = index + 1; i < blocks.size(); ++i) {
        const AssembledBlock& block = blocks[i];
        if (std::holds_alternative<document::Figure>(block.block.value) || (block.draft && isFloating(*block.draft)))
            continue;
        return block.draftParagraph() && block.paragraph() && block.draft->page == page ? &block : nullptr;
    }
    return nullptr;
}

/// Where a word processor lets the paragraph begin: above the space before it.
double topOf(const AssembledBlock& paragraph) {
    return paragraph.top - pointsFromTwips(paragraph.paragraph()->properties.spaceBefore);
}

bool belongsTo(const AssembledBlock& figure, const AssembledBlock& paragraph, const AssemblyContext& context) {
    const AssemblyParameters::Figures& limits = context.parameters.figures;
    const PageLayout& page = context.draft.pages[figure.draft->page];
    const Rect& box = figure.draft->box;
    const Rect& text = paragraph.draft->box;
    return std::max(text.top - box.bottom, box.top - text.bottom) <= limits.hangingReach &&
           box.area() <= limits.largestHanging * page.width * page.height;
}

void hangFrom(document::Placement& placement, double top) {
    if (placement.verticalAnchor != document::VerticalAnchor::Page)
        return;
    placement.verticalAnchor = document::VerticalAnchor::Paragraph;
    placement.y = placement.y - emuFromPoints(top);
}

bool standsBeside(const AssembledBlock& a, const AssembledBlock& b) {
    const Rect &first = a.draft->box, &second = b.draft->box;
    const double shared = overlap(first.top, first.bottom, second.top, second.bottom);
    return a.draft->page == b.draft->page && 2 * shared > std::min(first.height(), second.height()) &&
           (first.right <= second.left || second.right <= first.left);
}

/// A picture that stands in a paragraph of its own.
bool isPictureParagraph(const AssembledBlock& block) {
    return block.paragraph() && block.draft && std::holds_alternative<FigureDraft>(block.draft->value);
}

/// A picture that text makes way for.
bool isFreePicture(const AssembledBlock& block) {
    const auto* figure = std::get_if<document::Figure>(&block.block.value);
    return figure && block.draft && !takesNoRoom(figure->placement) &&
           figure->placement.verticalAnchor == document::VerticalAnchor::Page;
}

/// Whether the block is a picture in the paragraph's column that begins beside its lines. One that reaches above these
/// would push away the text above, if it went with them, and at a page's top not all word processors count the space
/// before a paragraph as part of it.
bool beginsBeside(const AssembledBlock& block, const AssembledBlock& paragraph) {
    const auto* figure = std::get_if<document::Figure>(&block.block.value);
    const Rect& box = block.draft->box;
    const ColumnSpan& column = paragraph.draftParagraph()->pieces.front().column;
    return figure && std::holds_alternative<document::Picture>(figure->content) && box.left >= column.left &&
           box.right <= column.right && box.top >= paragraph.top && box.top < paragraph.draft->box.bottom &&
           paragraph.paragraph()->properties.spaceBefore == Twips(0);
}

void moveIntoCell(document::Placement& placement, double left) {
    if (placement.horizontalAnchor != document::HorizontalAnchor::Page)
        return;
    placement.horizontalAnchor = document::HorizontalAnchor::Column;
    placement.x = placement.x - emuFromPoints(left);
}

bool floats(const AssembledBlock& block) {
    return block.draft ? isFloating(*block.draft) : std::holds_alternative<document::Figure>(block.block.value);
}

bool startsOn(const AssembledBlock& block, std::size_t page) {
    return block.draft && block.draft->page == page;
}

} // namespace

void keepOnPages(std::vector<AssembledBlock>& blocks) {
    std::size_t host = blocks.size();
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        if (!floats(blocks[i])) {
            host = blocks[i].paragraph() ? i : host;
            continue;
        }
        std::size_t end = i;
        while (end < blocks.size() && floats(blocks[end]))
            ++end;
        if (host < i && end < blocks.size() && blocks[host].draft && !startsOn(blocks[end], blocks[host].draft->page)) {
            const std::size_t page = blocks[host].draft->page;
            const auto at = [&](std::size_t index) { return blocks.begin() + static_cast<std::ptrdiff_t>(index); };
            const auto last = std::stable_partition(at(i), at(end),
                                                    [&](const AssembledBlock& block) { return startsOn(block, page); });
            std::rotate(at(host), at(i), last);
            host = blocks.size();
        }
        i = end - 1;
    }
}

void hangBelowSpace(std::vector<AssembledBlock>& blocks) {
    for (AssembledBlock& block : blocks) {
        if (!isPictureParagraph(block))
            continue;
        const Emu space = emuFromPoints(block.top - topOf(block));
        for (document::Block& floating : block.floats)
            if (document::Placement* placement = placementOf(floating))
                placement->y = placement->y + space;
    }
}

void hangBesidePictures(std::vector<AssembledBlock>& blocks) {
    for (std::size_t i = 0; i + 1 < blocks.size(); ++i) {
        AssembledBlock &first = blocks[i], &second = blocks[i + 1];
        const bool haveText = !first.floats.empty() || !second.floats.empty();
        if (isPictureParagraph(first) && isFreePicture(second) && !haveText && standsBeside(first, second))
            std::swap(first, second); // what floats is written into the paragraph behind it
        if (isFreePicture(first) && isPictureParagraph(second) && standsBeside(first, second))
            hangFrom(std::get<document::Figure>(first.block.value).placement, topOf(second));
    }
}

void hangBesideText(std::vector<AssembledBlock>& blocks) {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const AssembledBlock* host = isFreePicture(blocks[i]) ? hostOf(blocks, i) : nullptr;
        if (host && beginsBeside(blocks[i], *host))
            hangFrom(std::get<document::Figure>(blocks[i].block.value).placement, host->top);
    }
}

void hangOnText(std::vector<AssembledBlock>& blocks, const std::optional<CellOrigin>& cell,
                const AssemblyContext& context) {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        AssembledBlock& block = blocks[i];
        document::Placement* placement = placementOf(block.block);
        if (!placement || !block.draft || !(cell || takesNoRoom(*placement)))
            continue;
        const AssembledBlock* host = hostOf(blocks, i);
        if (!cell && (!host || !belongsTo(block, *host, context)))
            continue;
        const double top = host ? topOf(*host) : cell->top;
        std::vector<document::Placement*> hanging{placement};
        for (document::Block& floating : block.floats)
            if (document::Placement* label = placementOf(floating))
                hanging.push_back(label);
        for (document::Placement* each : hanging) {
            hangFrom(*each, top);
            if (cell)
                moveIntoCell(*each, cell->left);
        }
    }
}

} // namespace orvane::layout
