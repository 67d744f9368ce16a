#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes w:tbl. A table within more tables than readers take is written as the paragraphs in it.
/// Source: ECMA-376 part 1, 17.4.
void writeTable(Story& story, const document::Table& table);

} // namespace orvane::write::docx
