#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"
#include "write/docx/TableGrid.h"

namespace orvane::write::docx {

/// What a table says for all its cells; a cell says what differs.
struct CellDefaults {
    Twips marginLeft, marginRight, marginTop, marginBottom;

    bool operator==(const CellDefaults&) const = default;
};

/// Writes margins, w:tblCellMar of a table or w:tcMar of a cell.
void writeCellMargins(XmlWriter& xml, std::string_view element, const CellDefaults& margins);

/// Writes w:tc.
void writeCell(Story& story, const PlacedCell& placed, Twips width, const CellDefaults& defaults);

} // namespace orvane::write::docx
