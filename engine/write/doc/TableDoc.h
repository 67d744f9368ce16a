#pragma once

#include "document/Document.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// Writes a table. A table within more tables than readers take is written as the paragraphs in it.
/// Source: [MS-DOC] 2.4.3 (overview of tables).
void writeTable(Story& story, const document::Table& table);

} // namespace orvane::write::doc
