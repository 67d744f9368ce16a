#include "write/doc/NoteDoc.h"

#include "write/NoteMarks.h"
#include "write/doc/BlockDoc.h"
#include "write/doc/ParagraphDoc.h"
#include "write/doc/RunDoc.h"

#include <utility>

namespace orvane::write::doc {
namespace {

using namespace document;

/// Writes a mark: the sign that readers count, or a text of its own.
void writeMark(Story& story, const std::string& customMark, const RunProperties& look, const RunProperties& base) {
    PropertyList list;
    addRunProperties(list, story.state.fonts, look, base);
    if (customMark.empty())
        story.text.add({&character::kNote, 1}, list.add(sprm::kCFSpec, 1).bytes());
    else
        story.text.add(utf16FromUtf8(customMark), list.bytes());
}

/// Writes the mark at the start of a note, and a blank after it.
void writeOwnMark(Story& story, const Note& note, const std::string& customMark) {
    const RunProperties& base = noteBase(story.state.styles, note);
    RunProperties look = markLook(story.state.styles, note);
    writeMark(story, customMark, look, base);
    look.verticalPosition = VerticalPosition::Baseline;
    writeMark(story, " ", look, base);
}

void writeNote(DocState& state, NoteTexts& notes, const Note& note, const std::string& customMark) {
    notes.starts.push_back(notes.text.length());
    Story story{state, notes.text, StoryKind::Note};
    writeBlocks(story, note.blocks, {[&] { writeOwnMark(story, note, customMark); }});
    writeDisplacedNotes(story);
    endParagraph(story, ParagraphEnd::Paragraph);
}

} // namespace

void writeNoteReference(Story& story, const NoteReference& reference, const RunProperties& base) {
    DocState& state = story.state;
    if (reference.note >= state.document.notes.size())
        return;
    const bool isFirst = !state.isNoteWritten[reference.note];
    state.isNoteWritten[reference.note] = true;
    if (!isFirst || story.kind != StoryKind::Body) {
        writeMark(story, plainMark(reference), reference.properties, base);
        if (isFirst)
            story.displacedNotes.push_back(reference.note);
        return;
    }
    const Note& note = state.document.notes[reference.note];
    NoteTexts& notes = note.kind == NoteKind::Footnote ? state.footnotes : state.endnotes;
    notes.references.push_back({story.text.length(), reference.customMark.empty()});
    writeMark(story, reference.customMark, reference.properties, base);
    writeNote(state, notes, note, reference.customMark);
}

void writeDisplacedNotes(Story& story) {
    // A note may bring further ones along.
    while (!story.displacedNotes.empty())
        for (const std::size_t index : std::exchange(story.displacedNotes, {}))
            writeBlocks(story, story.state.document.notes[index].blocks);
}

void reportLostNotes(DocState& state) {
    for (std::size_t i = 0; i < state.isNoteWritten.size(); ++i)
        if (!state.isNoteWritten[i])
            state.diagnostics.add(DiagnosticKind::LinkUnresolved, state.document.notes[i].origin.page,
                                  "a note that nothing refers to was left out", state.document.notes[i].origin.box);
}

NoteTables noteTables(const NoteTexts& notes, std::uint32_t bodyLength) {
    if (notes.references.empty())
        return {};
    Bytes references;
    for (const NoteTexts::Reference& reference : notes.references)
        references.u32(reference.place);
    references.u32(bodyLength);
    for (const NoteTexts::Reference& reference : notes.references)
        references.u16(reference.isCounted ? 1 : 0);
    Bytes texts;
    for (const std::uint32_t start : notes.starts)
        texts.u32(start);
    // The last paragraph mark of the text belongs to no note.
    texts.u32(notes.text.length() - 1).u32(notes.text.length());
    return {references.str(), texts.str()};
}

} // namespace orvane::write::doc
