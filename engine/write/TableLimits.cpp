#include "write/TableLimits.h"

namespace orvane::write {

using namespace document;

void writeAsParagraphs(const Table& table, int& flattened, Diagnostics& diagnostics, const CellSink& write) {
    if (flattened == 0)
        diagnostics.add(DiagnosticKind::FormatLimitReached, table.origin.page,
                        "a table stands within too many others and became paragraphs", table.origin.box);
    ++flattened;
    for (const TableRow& row : table.rows)
        for (const TableCell& cell : row.cells)
            write(cell.blocks);
    --flattened;
}

void tellOfCutColumns(const TableGrid& grid, const Table& table, Diagnostics& diagnostics) {
    if (grid.wasCut())
        diagnostics.add(DiagnosticKind::FormatLimitReached, table.origin.page,
                        "a table has more columns than word processors take; the last ones became one",
                        table.origin.box);
}

} // namespace orvane::write
