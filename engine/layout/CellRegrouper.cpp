#include "layout/CellRegrouper.h"

#include "layout/ParagraphBuilder.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace orvane::layout {
namespace {

using document::Alignment;

template<typename Function>
void forLines(const CellDraft& cell, const Function& function) {
    for (const PageBlock& block : cell.blocks)
        if (const auto* paragraph = std::get_if<ParagraphDraft>(&block.value))
            std::for_each(paragraph->lines.begin(), paragraph->lines.end(), function);
}

/// The margin between the cells' sides and their text, as the lines' starts show it; word processors have the same at
/// both sides of all cells.
double paddingOf(const TableDraft& table) {
    double least = 1e9;
    for (const CellDraft& cell : table.cells)
        forLines(cell, [&](const Line& line) {
            least =
                std::min(least, line.isRightToLeft ? cell.box.right - line.box.right : line.box.left - cell.box.left);
        });
    return std::max(0.0, least == 1e9 ? 0 : least);
}

/// The room for text in each column of the grid.
std::vector<ColumnSpan> columnsOf(const TableDraft& table) {
    std::vector<ColumnSpan> columns;
    const double padding = paddingOf(table);
    for (std::size_t i = 0; i + 1 < table.columnEdges.size(); ++i)
        columns.push_back({table.columnEdges[i] + padding, table.columnEdges[i + 1] - padding});
    if (table.isRuled)
        return columns;
    // Where nothing is drawn between columns only their texts tell how far they reach.
    for (std::size_t i = 0; i < columns.size(); ++i) {
        ColumnSpan text{1e9, -1e9};
        for (const CellDraft& cell : table.cells)
            if (cell.column == static_cast<int>(i) && cell.columnSpan == 1)
                forLines(cell, [&](const Line& line) {
                    text = {std::min(text.left, line.box.left), std::max(text.right, line.box.right)};
                });
        if (text.left < text.right)
            columns[i] = text;
    }
    return columns;
}

/// Paragraphs that follow each other in one cell, as one run of lines.
struct Run {
    std::vector<Line> lines;
    Alignment alignment = Alignment::Start; ///< what the cells of the column showed
};

void flush(Run& run, std::vector<PageBlock>& blocks, ColumnSpan column, const ParagraphContext& context,
           const LayoutParameters& parameters) {
    for (ParagraphDraft& paragraph : buildParagraphs(run.lines, column, context, parameters)) {
        // The few lines of one paragraph tell less about the edge they keep than the cells of the whole column.
        if (paragraph.alignment != Alignment::Justified)
            paragraph.alignment = run.alignment;
        blocks.emplace_back().value = std::move(paragraph);
    }
    run = {};
}

void regroupCell(CellDraft& cell, ColumnSpan column, const ParagraphContext& context,
                 const LayoutParameters& parameters) {
    std::vector<PageBlock> blocks;
    Run run;
    for (PageBlock& block : cell.blocks) {
        if (auto* paragraph = std::get_if<ParagraphDraft>(&block.value)) {
            run.alignment = paragraph->alignment;
            std::move(paragraph->lines.begin(), paragraph->lines.end(), std::back_inserter(run.lines));
            continue;
        }
        flush(run, blocks, column, context, parameters);
        if (auto* table = std::get_if<TableDraft>(&block.value))
            regroupCells(*table, context, parameters);
        blocks.push_back(std::move(block));
    }
    flush(run, blocks, column, context, parameters);
    cell.blocks = std::move(blocks);
}

} // namespace

void regroupCells(TableDraft& table, const ParagraphContext& context, const LayoutParameters& parameters) {
    const std::vector<ColumnSpan> columns = columnsOf(table);
    for (CellDraft& cell : table.cells) {
        const auto first = static_cast<std::size_t>(cell.column);
        const auto last = first + static_cast<std::size_t>(cell.columnSpan) - 1;
        if (cell.direction == document::TextDirection::Horizontal && last < columns.size())
            regroupCell(cell, {columns[first].left, columns[last].right}, context, parameters);
    }
}

} // namespace orvane::layout
