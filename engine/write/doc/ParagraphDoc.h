#pragma once

#include "document/Document.h"
#include "write/BlockFlow.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// Writes a paragraph up to its mark: what ends it depends on what follows.
void writeParagraph(Story& story, const document::Paragraph& paragraph, const ParagraphLoad& load);

enum class ParagraphEnd { Paragraph, Cell, Section };

/// Ends the open paragraph. Does nothing where none is open.
/// Source: [MS-DOC] 2.4.2 (paragraphs), 2.4.3 (cells).
void endParagraph(Story& story, ParagraphEnd end);

/// Writes the mark that ends a row, with the row's properties.
void writeRowEnd(Story& story, const std::string& rowProperties);

} // namespace orvane::write::doc
