#pragma once

#include "document/Document.h"
#include "write/TableGrid.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Which side of a cell the format's "left" is: in tables that run from right to left it is the right one.
enum class CellSides { AsSeen, Mirrored };

struct CellMargins {
    Twips top, left, bottom, right;

    bool operator==(const CellMargins&) const = default;
};

/// What a table says for all its cells; a cell says what differs.
struct CellDefaults {
    CellSides sides = CellSides::AsSeen;
    CellMargins margins; ///< as seen
};

CellMargins marginsOf(const document::TableCell& cell);

/// Writes margins, w:tblCellMar of a table or w:tcMar of a cell.
void writeCellMargins(XmlWriter& xml, std::string_view element, CellMargins margins, CellSides sides);

/// Writes w:tc.
void writeCell(Story& story, const PlacedCell& placed, Twips width, const CellDefaults& defaults);

} // namespace orvane::write::docx
