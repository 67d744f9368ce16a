#pragma once

#include "document/Document.h"
#include "write/BlockFlow.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes a paragraph up to its mark: what ends it depends on what follows, see endParagraph().
void writeParagraph(Story& story, const document::Paragraph& paragraph, const ParagraphLoad& load);

/// Ends the open paragraph with the word: \par, \cell, \sect. Does nothing where none is open.
void endParagraph(Story& story, std::string_view word);

} // namespace orvane::write::rtf
