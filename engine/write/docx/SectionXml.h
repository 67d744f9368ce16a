#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes w:sectPr: pages, columns and running texts of a section. The running texts become parts of the package.
/// Source: ECMA-376 part 1, 17.6.
void writeSection(DocumentState& state, XmlWriter& xml, Relationships& relationships, const document::Section& section);

} // namespace orvane::write::docx
