#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

#include <functional>
#include <vector>

namespace orvane::write::docx {

/// What a paragraph carries for others.
struct ParagraphLoad {
    std::vector<const document::Block*> floats;      ///< anchored in it
    const document::Section* endedSection = nullptr; ///< that it is the last of
    std::function<void()> writeLead;                 ///< runs before its own: a note's mark
    std::function<void()> writeTail;                 ///< runs after its own: the end of a field
};

/// Writes w:p.
void writeParagraph(Story& story, const document::Paragraph& paragraph, const ParagraphLoad& load);

/// Writes a paragraph of next to no height that holds what needs one where the document has none: floating objects
/// before a table, a section's end, the end of a cell, the gap between two tables.
void writeThinParagraph(Story& story, const ParagraphLoad& load);

} // namespace orvane::write::docx
