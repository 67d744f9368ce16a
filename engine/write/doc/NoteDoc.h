#pragma once

#include "document/Document.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// Writes the mark of a note in the text, and the note into the text of its kind. Where the format has no notes
/// (running texts, notes themselves) the mark is plain text, and the note follows by writeDisplacedNotes().
/// Source: [MS-DOC] 2.3.2, 2.3.6 (footnote and endnote documents).
void writeNoteReference(Story& story, const document::NoteReference& reference, const document::RunProperties& base);

/// Writes the notes that could not be notes where their marks stand, as paragraphs.
void writeDisplacedNotes(Story& story);

/// Tells of the notes that no reference led to.
void reportLostNotes(DocState& state);

/// The tables of the notes of one kind: where their marks stand, and where each begins.
struct NoteTables {
    std::string references;
    std::string texts;
};
NoteTables noteTables(const NoteTexts& notes, std::uint32_t bodyLength);

} // namespace orvane::write::doc
