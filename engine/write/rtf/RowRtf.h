#pragma once

#include "document/Document.h"
#include "write/TableGrid.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// What the definition of a row needs to know of its table.
struct RowPlace {
    const document::Table& table;
    const TableGrid& grid;
    bool isRepeated = false; ///< at the top of each page
};

/// Writes how a row stands, and its cells: their borders, grounds, merges, and where each ends.
/// Source: RTF 1.9.1, "Table Definitions".
void writeRowDefinition(RtfState& state, RtfStream& rtf, const document::TableRow& row, const PlacedRow& placed,
                        const RowPlace& place);

} // namespace orvane::write::rtf
