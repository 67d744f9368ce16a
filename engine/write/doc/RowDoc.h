#pragma once

#include "document/Document.h"
#include "write/TableGrid.h"
#include "write/doc/PropertyList.h"

namespace orvane::write::doc {

/// What the properties of a row need to know of its table.
struct RowPlace {
    const document::Table& table;
    const TableGrid& grid;
    bool isRepeated = false; ///< at the top of each page
};

/// Adds how a row and its cells stand and look.
/// Source: [MS-DOC] 2.6.3, 2.9.305 (TDefTableOperand).
void addRowProperties(PropertyList& list, const document::TableRow& row, const PlacedRow& placed,
                      const RowPlace& place);

} // namespace orvane::write::doc
