#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes the mark of a note, and with it the note. Where the format has no notes (text boxes, running texts, notes
/// themselves) the mark is plain text, and the note follows by writeDisplacedNotes().
/// Source: RTF 1.9.1, "Footnotes".
void writeNoteReference(Story& story, const document::NoteReference& reference, const document::RunProperties& base);

/// Writes the notes that could not be notes where their marks stand, as paragraphs.
void writeDisplacedNotes(Story& story);

/// Tells of the notes that no reference led to.
void reportLostNotes(RtfState& state);

} // namespace orvane::write::rtf
