#pragma once

#include "document/Document.h"
#include "write/BlockFlow.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes w:p.
void writeParagraph(Story& story, const document::Paragraph& paragraph, const ParagraphLoad& load);

/// Writes a paragraph of next to no height that holds what needs one where the document has none: floating objects
/// before a table, a section's end, the end of a cell, the gap between two tables.
void writeThinParagraph(Story& story, const ParagraphLoad& load);

} // namespace orvane::write::docx
