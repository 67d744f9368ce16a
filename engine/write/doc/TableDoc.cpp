#include "write/doc/TableDoc.h"

#include "write/TableGrid.h"
#include "write/doc/BlockDoc.h"
#include "write/doc/ParagraphDoc.h"
#include "write/doc/RowDoc.h"

namespace orvane::write::doc {
namespace {

using namespace document;

/// Word processors need several times as long for each table within a table that goes over a page's end.
constexpr int kDeepestTable = 10;

void writeCell(Story& story, const PlacedCell& placed) {
    const bool hasContent = placed.cell && placed.merge != VerticalMerge::Continues;
    if (hasContent)
        writeBlocks(story, placed.cell->blocks);
    for (const TableCell* cell : placed.appended)
        writeBlocks(story, cell->blocks);
    if (!hasContent && placed.appended.empty())
        writeBlocks(story, {});
    endParagraph(story, ParagraphEnd::Cell);
}

void writeRow(Story& story, const TableRow& row, const PlacedRow& placed, const RowPlace& place) {
    for (const PlacedCell& cell : placed.cells)
        writeCell(story, cell);
    PropertyList properties;
    addRowProperties(properties, row, placed, place);
    writeRowEnd(story, properties.bytes());
}

void writeAsParagraphs(Story& story, const Table& table) {
    if (story.flattenedTables == 0)
        story.state.diagnostics.add(DiagnosticKind::FormatLimitReached, table.origin.page,
                                    "a table stands within too many others and became paragraphs", table.origin.box);
    ++story.flattenedTables;
    for (const TableRow& row : table.rows)
        for (const TableCell& cell : row.cells)
            writeBlocks(story, cell.blocks);
    --story.flattenedTables;
}

} // namespace

void writeTable(Story& story, const Table& table) {
    if (table.rows.empty())
        return;
    if (story.tableDepth >= kDeepestTable) {
        writeAsParagraphs(story, table);
        return;
    }
    endParagraph(story, ParagraphEnd::Paragraph);
    TableGrid grid(table);
    if (grid.wasCut())
        story.state.diagnostics.add(DiagnosticKind::FormatLimitReached, table.origin.page,
                                    "a table has more columns than word processors take; the last ones became one",
                                    table.origin.box);
    ++story.tableDepth;
    bool isHead = true;
    for (const TableRow& row : table.rows) {
        // Only the first rows can be repeated.
        isHead = isHead && row.isHeader;
        const PlacedRow placed = withSideCells(grid.place(row), grid);
        writeRow(story, row, placed, {table, grid, isHead});
    }
    --story.tableDepth;
}

} // namespace orvane::write::doc
