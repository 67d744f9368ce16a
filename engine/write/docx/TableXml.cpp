#include "write/docx/TableXml.h"

#include "write/TableGrid.h"
#include "write/TableLimits.h"
#include "write/docx/BlockXml.h"
#include "write/docx/CellXml.h"

#include <algorithm>
#include <variant>

namespace orvane::write::docx {
namespace {

using namespace document;

constexpr int kTallestRow = 31680;

/// The first cell's margins stand in the table's properties, so that only cells with others repeat them.
CellDefaults defaultsOf(const Table& table) {
    CellDefaults defaults{table.isRightToLeft ? CellSides::Mirrored : CellSides::AsSeen, {}};
    for (const TableRow& row : table.rows)
        if (!row.cells.empty()) {
            defaults.margins = marginsOf(row.cells.front());
            break;
        }
    return defaults;
}

bool startsInRightToLeftText(const Table& table) {
    if (table.rows.empty() || table.rows.front().cells.empty() || table.rows.front().cells.front().blocks.empty())
        return false;
    const auto* first = std::get_if<Paragraph>(&table.rows.front().cells.front().blocks.front().value);
    return first && first->properties.isRightToLeft;
}

void writeTableProperties(XmlWriter& xml, const Table& table, const TableGrid& grid, const CellDefaults& defaults) {
    const XmlElement tblPr(xml, "w:tblPr");
    if (table.isRightToLeft)
        xml.leaf("w:bidiVisual");
    else if (startsInRightToLeftText(table)) // some readers turn a table that says nothing
        xml.leaf("w:bidiVisual", {{"w:val", 0}});
    const Twips width = grid.width(0, static_cast<int>(grid.columnWidths().size()));
    xml.leaf("w:tblW", {{"w:w", width.value}, {"w:type", "dxa"}});
    if (table.alignment == Alignment::Center || table.alignment == Alignment::End)
        xml.leaf("w:jc", {{"w:val", table.alignment == Alignment::Center ? "center" : "right"}});
    else
        xml.leaf("w:tblInd", {{"w:w", table.indent.value}, {"w:type", "dxa"}});
    xml.leaf("w:tblLayout", {{"w:type", "fixed"}});
    writeCellMargins(xml, "w:tblCellMar", defaults.margins, defaults.sides);
}

void writeGrid(XmlWriter& xml, const TableGrid& grid) {
    const XmlElement tblGrid(xml, "w:tblGrid");
    for (const Twips width : grid.columnWidths())
        xml.leaf("w:gridCol", {{"w:w", std::max(0, width.value)}});
}

void writeFreeColumns(XmlWriter& xml, const TableGrid& grid, const PlacedRow& placed) {
    const auto write = [&](std::string_view count, std::string_view width, int column, int span) {
        if (span == 0)
            return;
        xml.leaf(count, {{"w:val", span}});
        xml.leaf(width, {{"w:w", grid.width(column, span).value}, {"w:type", "dxa"}});
    };
    const int columns = static_cast<int>(grid.columnWidths().size());
    write("w:gridBefore", "w:wBefore", 0, placed.columnsBefore);
    write("w:gridAfter", "w:wAfter", columns - placed.columnsAfter, placed.columnsAfter);
}

void writeRowProperties(XmlWriter& xml, const TableRow& row, const TableGrid& grid, const PlacedRow& placed,
                        bool isRepeated) {
    const XmlElement trPr(xml, "w:trPr", EmptyElement::Omit);
    writeFreeColumns(xml, grid, placed);
    if (!row.mayBreakAcrossPages)
        xml.leaf("w:cantSplit");
    if (row.height > Twips(0))
        xml.leaf("w:trHeight", {{"w:val", std::min(row.height.value, kTallestRow)},
                                {"w:hRule", row.isExactHeight ? "exact" : "atLeast"}});
    if (isRepeated)
        xml.leaf("w:tblHeader");
}

void writeRows(Story& story, const Table& table, TableGrid& grid, const CellDefaults& defaults) {
    bool isHead = true;
    for (const TableRow& row : table.rows) {
        // Only the first rows can be repeated.
        isHead = isHead && row.isHeader;
        const PlacedRow placed = grid.place(row);
        const XmlElement tr(story.xml, "w:tr");
        writeRowProperties(story.xml, row, grid, placed, isHead);
        for (const PlacedCell& cell : placed.cells)
            writeCell(story, cell, grid.width(cell.column, cell.span), defaults);
    }
}

} // namespace

void writeTable(Story& story, const Table& table) {
    if (table.rows.empty())
        return;
    if (story.tableDepth >= kDeepestTable) {
        writeAsParagraphs(table, story.flattenedTables, story.state.diagnostics,
                          [&story](const std::vector<Block>& blocks) { writeBlocks(story, blocks); });
        return;
    }
    TableGrid grid(table);
    tellOfCutColumns(grid, table, story.state.diagnostics);
    const CellDefaults defaults = defaultsOf(table);
    const XmlElement tbl(story.xml, "w:tbl");
    writeTableProperties(story.xml, table, grid, defaults);
    writeGrid(story.xml, grid);
    ++story.tableDepth;
    writeRows(story, table, grid, defaults);
    --story.tableDepth;
}

} // namespace orvane::write::docx
