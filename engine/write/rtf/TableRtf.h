#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes a table. A table within more tables than readers take is written as the paragraphs in it.
/// Source: RTF 1.9.1, "Table Definitions".
void writeTable(Story& story, const document::Table& table);

} // namespace orvane::write::rtf
