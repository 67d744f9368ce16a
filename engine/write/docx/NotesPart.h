#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes the mark of a note in the text. Where the format has no notes (text boxes, running texts, notes themselves)
/// the mark is plain text, and the note follows by writeDisplacedNotes().
/// Source: ECMA-376 part 1, 17.11.
void writeNoteReference(Story& story, const document::NoteReference& reference, const document::RunProperties& base);

/// Writes the notes that could not be notes where their marks stand, as paragraphs.
void writeDisplacedNotes(Story& story);

/// Adds the parts with the footnotes and endnotes, as far as the document has some; `relationships` are those of the
/// body.
void addNotesParts(DocumentState& state, Relationships& relationships);

/// Writes how notes are counted, as the children of w:footnotePr or w:endnotePr, where that is not `usual`.
/// Source: ECMA-376 part 1, 17.11.17 (numFmt), 17.11.19 (numRestart).
void writeNoteNumbering(XmlWriter& xml, const document::NoteNumbering& numbering, document::NumberFormat usual);

/// Whether the document has notes of the kind.
bool hasNotes(const document::Document& document, document::NoteKind kind);

} // namespace orvane::write::docx
