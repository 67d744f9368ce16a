#include "write/doc/TableDoc.h"

#include "write/TableGrid.h"
#include "write/TableLimits.h"
#include "write/doc/BlockDoc.h"
#include "write/doc/ParagraphDoc.h"
#include "write/doc/RowDoc.h"

namespace orvane::write::doc {
namespace {

using namespace document;

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

} // namespace

void writeTable(Story& story, const Table& table) {
    if (table.rows.empty())
        return;
    if (story.tableDepth >= kDeepestTable) {
        writeAsParagraphs(table, story.flattenedTables, story.state.diagnostics,
                          [&story](const std::vector<Block>& blocks) { writeBlocks(story, blocks); });
        return;
    }
    endParagraph(story, ParagraphEnd::Paragraph);
    TableGrid grid(table);
    tellOfCutColumns(grid, table, story.state.diagnostics);
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
