#pragma once

#include "base/Diagnostic.h"
#include "document/Document.h"
#include "write/TableGrid.h"

#include <functional>

namespace orvane::write {

/// Word processors need several times as long for each table within a table that goes over a page's end, and XML
/// readers give up at 256 elements, of which a table takes three.
inline constexpr int kDeepestTable = 10;

/// Takes the blocks of one cell.
using CellSink = std::function<void(const std::vector<document::Block>& blocks)>;

/// Gives the cells of a table that stands too deep to `write`, row by row, as text without a table. `flattened` counts
/// the tables around that became paragraphs too; only the outermost is told of.
void writeAsParagraphs(const document::Table& table, int& flattened, Diagnostics& diagnostics, const CellSink& write);

/// Tells of columns that were joined, as there are more than word processors take.
void tellOfCutColumns(const TableGrid& grid, const document::Table& table, Diagnostics& diagnostics);

} // namespace orvane::write
