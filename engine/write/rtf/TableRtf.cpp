#include "write/rtf/TableRtf.h"

#include "write/TableGrid.h"
#include "write/TableLimits.h"
#include "write/rtf/BlockRtf.h"
#include "write/rtf/ParagraphRtf.h"
#include "write/rtf/RowRtf.h"

namespace orvane::write::rtf {
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
    endParagraph(story, story.tableDepth > 1 ? "nestcell" : "cell");
}

void writeCells(Story& story, const PlacedRow& placed) {
    for (const PlacedCell& cell : placed.cells)
        writeCell(story, cell);
}

/// The definition of a row stands before its cells; that of a row in a table within a cell after them, where readers
/// that know no such tables pass over it.
void writeRow(Story& story, const TableRow& row, const PlacedRow& placed, const RowPlace& place) {
    RtfStream& rtf = story.rtf;
    if (story.tableDepth == 1) {
        writeRowDefinition(story.state, rtf, row, placed, place);
        writeCells(story, placed);
        rtf.word("row");
        rtf.newLine();
        return;
    }
    writeCells(story, placed);
    {
        const RtfDestination properties(rtf, "nesttableprops");
        writeRowDefinition(story.state, rtf, row, placed, place);
        rtf.word("nestrow");
    }
    const RtfGroup others(rtf, "nonesttables");
    rtf.word("par");
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
    endParagraph(story, "par");
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

} // namespace orvane::write::rtf
