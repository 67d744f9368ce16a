#include "layout/assembly/TableAssembler.h"

#include "layout/assembly/BlockAssembler.h"
#include "layout/assembly/EmptyParagraph.h"
#include "layout/assembly/LineSpare.h"
#include "layout/assembly/TableReach.h"
#include "layout/structure/BlockColumn.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// The smallest space between the cells' sides and their text, as far as it is usual; the same for all cells of a
/// table.
double sideMargin(const DraftTable& draft, const AssemblyParameters::TableCells& limits) {
    double margin = limits.usualMargin;
    for (const DraftCell& cell : draft.cells)
        for (const DraftBlock& block : cell.blocks)
            if (block.paragraph())
                margin = std::min({margin, block.box.left - cell.cell.box.left, cell.cell.box.right - block.box.right});
    return std::max(0.0, margin);
}

/// Of a cell's margins what its text leaves.
struct SideMargins {
    double left = 0;
    double right = 0;
};

/// Which of its sides a paragraph is not set against.
struct LooseSides {
    bool left = false;
    bool right = false;
};

LooseSides looseSidesOf(const DraftParagraph& paragraph) {
    switch (paragraph.pieces.front().text.alignment) {
    case document::Alignment::Center:
        return {true, true};
    case document::Alignment::End:
        return {!paragraph.firstLine().isRightToLeft, paragraph.firstLine().isRightToLeft};
    default:
        return {paragraph.firstLine().isRightToLeft, !paragraph.firstLine().isRightToLeft};
    }
}

/// The margins of one cell: a line that ends where the margin begins may find no room in another program.
SideMargins marginsOf(const DraftCell& draft, double margin, const LayoutParameters& parameters) {
    SideMargins margins{margin, margin};
    LooseSides loose{true, true};
    for (const DraftBlock& block : draft.blocks) {
        const DraftParagraph* paragraph = block.paragraph();
        if (!paragraph)
            continue;
        const LooseSides own = looseSidesOf(*paragraph);
        loose = {loose.left && own.left, loose.right && own.right};
        const double least = parameters.tableCells.slackBeside;
        const double slack = std::max(least, spareOf(*paragraph, parameters.lineSpares).value_or(least));
        margins.left = std::min(margins.left, block.box.left - draft.cell.box.left - slack);
        margins.right = std::min(margins.right, draft.cell.box.right - block.box.right - slack);
    }
    return {loose.left ? std::max(0.0, margins.left) : margin, loose.right ? std::max(0.0, margins.right) : margin};
}

/// Indents count from the text's edge; in the draft they count from the cell's.
void takeMargin(document::Paragraph& paragraph, Twips margin) {
    document::ParagraphProperties& format = paragraph.properties;
    if (format.alignment == document::Alignment::Center)
        return;
    // One that reaches out of the cell leaves room for a stand-in of its line's font.
    for (Twips* indent : {&format.indentStart, &format.indentEnd})
        *indent = *indent < Twips(0) ? *indent - margin : std::max(Twips(0), *indent - margin);
    for (document::TabStop& tab : format.tabs)
        tab.position = std::max(Twips(0), tab.position - margin);
}

std::vector<AssembledBlock> assembleCellBlocks(const DraftCell& cell, Twips margin, const AssemblyContext& context) {
    std::vector<AssembledBlock> blocks = assembleBlocks(cell.blocks, context);
    for (AssembledBlock& block : blocks)
        if (document::Paragraph* paragraph = block.paragraph())
            takeMargin(*paragraph, margin);
        else if (auto* table = std::get_if<document::Table>(&block.block.value))
            table->indent = table->indent - margin;
    return blocks;
}

document::TableCell cellOf(const CellDraft& draft, const SideMargins& margins) {
    document::TableCell cell;
    cell.column = draft.column;
    cell.columnSpan = draft.columnSpan;
    cell.rowSpan = draft.rowSpan;
    cell.borders = draft.borders;
    cell.shading = draft.shading;
    cell.alignment = draft.alignment;
    cell.direction = draft.direction;
    cell.marginLeft = twipsFromPoints(margins.left);
    cell.marginRight = twipsFromPoints(margins.right);
    return cell;
}

/// How far the table's start edge stands from that of its column. Its border begins there.
double indentOf(const DraftBlock& place, const TableDraft& table, const TableReach& reach, const DocumentDraft& draft) {
    if (table.columnEdges.empty())
        return 0;
    const ColumnSpan column = columnOf(place, draft);
    return table.isRightToLeft ? column.right - table.columnEdges.back() - reach.right
                               : table.columnEdges.front() - reach.left - column.left;
}

/// A draft counts columns from the left; a table that is read from the right has its first column there.
void turnRightToLeft(document::Table& table) {
    std::reverse(table.columnWidths.begin(), table.columnWidths.end());
    const auto columns = static_cast<int>(table.columnWidths.size());
    for (document::TableRow& row : table.rows) {
        for (document::TableCell& cell : row.cells)
            cell.column = columns - cell.column - cell.columnSpan;
        std::reverse(row.cells.begin(), row.cells.end());
    }
}

} // namespace

AssembledBlock assembleTable(const DraftTable& draft, const DraftBlock& place, const AssemblyContext& context) {
    document::Table table;
    table.origin = {context.draft.pages[place.page].number, place.box};
    std::vector<double> columns = draft.table.columnEdges;
    const TableReach reach = reachOf(draft);
    if (!columns.empty()) {
        columns.front() -= reach.left;
        columns.back() += reach.right;
    }
    for (std::size_t i = 0; i + 1 < columns.size(); ++i)
        table.columnWidths.push_back(twipsFromPoints(columns[i + 1] - columns[i]));
    const std::vector<double>& rows = draft.table.rowEdges;
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        document::TableRow row;
        row.height = twipsFromPoints(rows[i + 1] - rows[i]);
        row.isHeader = static_cast<int>(i) < draft.table.headerRows;
        row.mayBreakAcrossPages = !draft.keepsRowsWhole;
        table.rows.push_back(row);
    }
    // The room that was left on the page is none of the row's, which is as high as its text.
    for (const int row : draft.cutRows)
        table.rows.at(static_cast<std::size_t>(row)).height = Twips(0);
    table.isRightToLeft = draft.table.isRightToLeft;
    table.indent = twipsFromPoints(indentOf(place, draft.table, reach, context.draft));

    AssembledBlock assembled;
    const double margin = sideMargin(draft, context.parameters.tableCells);
    for (const DraftCell& cell : draft.cells) {
        table.rows.at(static_cast<std::size_t>(cell.cell.row))
            .cells.push_back(cellOf(cell.cell, marginsOf(cell, margin, context.parameters)));
        assembled.cells.push_back(assembleCellBlocks(cell, twipsFromPoints(margin), context));
    }
    assembled.block.value = std::move(table);
    return assembled;
}

document::Paragraph* firstParagraphOf(AssembledBlock& block) {
    const auto* table = std::get_if<document::Table>(&block.block.value);
    if (!table || table->rows.empty() || table->rows.front().cells.empty())
        return nullptr;
    const std::size_t first = table->isRightToLeft ? table->rows.front().cells.size() - 1 : 0;
    return first < block.cells.size() && !block.cells[first].empty() ? block.cells[first].front().paragraph() : nullptr;
}

void fillCells(AssembledBlock& assembled, const AssemblyContext& context) {
    auto& table = std::get<document::Table>(assembled.block.value);
    auto inside = assembled.cells.begin();
    auto draft = std::get<DraftTable>(assembled.draft->value).cells.begin();
    for (document::TableRow& row : table.rows) {
        for (document::TableCell& cell : row.cells) {
            const Rect& box = (draft++)->cell.box;
            const CellOrigin origin{box.left + pointsFromTwips(cell.marginLeft), box.top};
            cell.blocks = finishBlocks(std::move(*inside++), context, origin);
            // A cell ends with a paragraph, whatever else stands in it.
            if (cell.blocks.empty() || !std::holds_alternative<document::Paragraph>(cell.blocks.back().value))
                cell.blocks.push_back({emptyParagraphWithin(box.height(), context)});
        }
    }
    if (table.isRightToLeft)
        turnRightToLeft(table);
}

} // namespace orvane::layout
