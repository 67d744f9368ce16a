#include "layout/TableAssembler.h"

#include "layout/BlockAssembler.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// Space between the cells' edges and their text, the same for all cells: the smallest that is seen.
double cellMargin(const DraftTable& draft, double usual) {
    double margin = usual;
    for (const DraftCell& cell : draft.cells)
        for (const DraftBlock& block : cell.blocks)
            if (block.paragraph())
                margin = std::min({margin, block.box.left - cell.cell.box.left, cell.cell.box.right - block.box.right});
    return std::max(0.0, margin);
}

document::Block emptyParagraph(const AssemblyContext& context) {
    document::Paragraph paragraph;
    paragraph.markProperties.fontFamily = context.fonts.mainFamily(ScriptClass::Simple);
    paragraph.markProperties.size = halfPointsFromPoints(context.document.bodyFontSize);
    return {std::move(paragraph)};
}

/// Indents count from the text's edge; in the draft they count from the cell's.
void takeMargin(document::Paragraph& paragraph, Twips margin) {
    document::ParagraphProperties& format = paragraph.properties;
    if (format.alignment == document::Alignment::Center)
        return;
    format.indentStart = std::max(Twips(0), format.indentStart - margin);
    format.indentEnd = std::max(Twips(0), format.indentEnd - margin);
    for (document::TabStop& tab : format.tabs)
        tab.position = std::max(Twips(0), tab.position - margin);
}

document::TableCell assembleCell(const DraftCell& draft, Twips margin, const AssemblyContext& context) {
    document::TableCell cell;
    cell.column = draft.cell.column;
    cell.columnSpan = draft.cell.columnSpan;
    cell.rowSpan = draft.cell.rowSpan;
    cell.borders = draft.cell.borders;
    cell.shading = draft.cell.shading;
    cell.alignment = draft.cell.alignment;
    cell.direction = draft.cell.direction;
    cell.marginLeft = cell.marginRight = margin;
    cell.blocks = assembleInside(draft.blocks, context);
    for (document::Block& block : cell.blocks)
        if (auto* paragraph = std::get_if<document::Paragraph>(&block.value))
            takeMargin(*paragraph, margin);
    // A cell ends with a paragraph, whatever else stands in it.
    if (cell.blocks.empty() || !std::holds_alternative<document::Paragraph>(cell.blocks.back().value))
        cell.blocks.push_back(emptyParagraph(context));
    return cell;
}

} // namespace

document::Table assembleTable(const DraftTable& draft, const DraftBlock& place, const AssemblyContext& context) {
    document::Table table;
    table.origin = {context.draft.pages[place.page].number, place.box};
    const std::vector<double>& columns = draft.table.columnEdges;
    for (std::size_t i = 0; i + 1 < columns.size(); ++i)
        table.columnWidths.push_back(twipsFromPoints(columns[i + 1] - columns[i]));
    const std::vector<double>& rows = draft.table.rowEdges;
    for (std::size_t i = 0; i + 1 < rows.size(); ++i) {
        document::TableRow row;
        row.height = twipsFromPoints(rows[i + 1] - rows[i]);
        row.isHeader = static_cast<int>(i) < draft.table.headerRows;
        table.rows.push_back(row);
    }
    const std::vector<Band>& bands = context.draft.pages[place.page].bands;
    const auto band = static_cast<std::size_t>(place.band), column = static_cast<std::size_t>(place.column);
    if (!columns.empty() && band < bands.size() && column < bands[band].columns.size())
        table.indent = twipsFromPoints(columns.front() - bands[band].columns[column].left);
    const Twips margin = twipsFromPoints(cellMargin(draft, context.parameters.tableCells.usualMargin));
    for (const DraftCell& cell : draft.cells)
        if (static_cast<std::size_t>(cell.cell.row) < table.rows.size())
            table.rows[static_cast<std::size_t>(cell.cell.row)].cells.push_back(assembleCell(cell, margin, context));
    return table;
}

} // namespace orvane::layout
