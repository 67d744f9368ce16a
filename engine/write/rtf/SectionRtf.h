#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

#include <string>

namespace orvane::write::rtf {

/// Writes the words for a size of pages and its margins that hold for the whole file.
void writeDocumentPage(RtfStream& rtf, const document::Section& section);

/// Writes the words for how notes are counted; `kind` tells of which notes and where: "ftn", "aftn", "sftn", "saftn".
void writeNoteNumbering(RtfStream& rtf, const std::string& kind, const document::NoteNumbering& numbering);

/// Writes the words that a section begins with, without its running texts.
/// Source: RTF 1.9.1, "Section Formatting Properties".
void writeSectionProperties(RtfState& state, RtfStream& rtf, const document::Section& section);

} // namespace orvane::write::rtf
