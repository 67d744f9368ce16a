#include "layout/structure/DraftBuilder.h"

#include "layout/support/BoxGroups.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

/// Where the blocks of a page or of a cell stand.
struct Place {
    std::size_t page = 0;
    const std::vector<Band>* bands = nullptr; ///< null within a cell
    ColumnSpan cell;
};

ColumnSpan columnOf(const PageBlock& block, const Place& place) {
    if (!place.bands)
        return place.cell;
    const auto band = static_cast<std::size_t>(block.band);
    const auto column = static_cast<std::size_t>(block.column);
    if (band < place.bands->size() && column < (*place.bands)[band].columns.size())
        return (*place.bands)[band].columns[column];
    return place.cell;
}

std::vector<DraftBlock> draftBlocks(std::vector<PageBlock> blocks, const Place& place);

DraftBlock draftBlock(PageBlock block, const Place& place) {
    DraftBlock draft;
    draft.page = place.page;
    draft.band = block.band;
    draft.column = block.column;
    if (!place.bands)
        draft.textColumn = place.cell;
    const ColumnSpan column = columnOf(block, place);
    if (auto* paragraph = std::get_if<ParagraphDraft>(&block.value)) {
        draft.box = paragraph->box;
        DraftParagraph made;
        made.pieces.push_back({place.page, block.band, block.column, column, std::move(*paragraph)});
        draft.value = std::move(made);
    } else if (auto* table = std::get_if<TableDraft>(&block.value)) {
        draft.box = table->box;
        DraftTable made;
        for (CellDraft& cell : table->cells) {
            const Place inner{place.page, nullptr, {cell.box.left, cell.box.right}};
            std::vector<DraftBlock> inside = draftBlocks(std::exchange(cell.blocks, {}), inner);
            made.cells.push_back({std::move(cell), std::move(inside)});
        }
        table->cells.clear();
        made.table = std::move(*table);
        draft.value = std::move(made);
    } else {
        auto& figure = std::get<FigureDraft>(block.value);
        draft.box = figure.figure.box;
        if (!figure.figure.showsLabels)
            draft.labels = draftLabels(std::exchange(figure.figure.labels, {}), place.page);
        draft.value = std::move(figure);
    }
    return draft;
}

std::vector<DraftBlock> draftBlocks(std::vector<PageBlock> blocks, const Place& place) {
    std::vector<DraftBlock> drafts;
    for (PageBlock& block : blocks) {
        const auto* paragraph = std::get_if<ParagraphDraft>(&block.value);
        if (paragraph && paragraph->lines.empty())
            continue;
        drafts.push_back(draftBlock(std::move(block), place));
    }
    return drafts;
}

} // namespace

std::vector<DraftBlock> addPage(DocumentDraft& draft, PageLayout page) {
    const Place place{draft.pages.size(), &page.bands, {0, page.width}};
    std::vector<DraftBlock> blocks = draftBlocks(std::exchange(page.blocks, {}), place);
    draft.pages.push_back(std::move(page));
    draft.fields.emplace_back();
    return blocks;
}

std::vector<DraftBlock> draftLabels(std::vector<Line> lines, std::size_t page) {
    BoxGroups groups(0);
    for (const Line& line : lines)
        groups.add(line.box);
    std::vector<DraftBlock> labels;
    for (const std::vector<std::size_t>& members : groups.groups()) {
        ParagraphDraft label;
        for (const std::size_t member : members) {
            label.box = label.box.united(lines[member].box);
            label.lines.push_back(std::move(lines[member]));
        }
        std::stable_sort(label.lines.begin(), label.lines.end(),
                         [](const Line& a, const Line& b) { return a.baseline < b.baseline; });
        DraftBlock& block = labels.emplace_back();
        block.page = page;
        block.box = label.box;
        DraftParagraph paragraph;
        paragraph.pieces.push_back({page, 0, 0, {label.box.left, label.box.right}, std::move(label)});
        block.value = std::move(paragraph);
    }
    return labels;
}

DocumentDraft buildDraft(std::vector<PageLayout> pages) {
    DocumentDraft draft;
    for (PageLayout& page : pages)
        for (DraftBlock& block : addPage(draft, std::move(page)))
            draft.blocks.push_back(std::move(block));
    return draft;
}

} // namespace orvane::layout
