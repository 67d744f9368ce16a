#include "write/rtf/NoteRtf.h"

#include "write/NoteMarks.h"
#include "write/rtf/BlockRtf.h"
#include "write/rtf/ParagraphRtf.h"
#include "write/rtf/RunRtf.h"

#include <utility>

namespace orvane::write::rtf {
namespace {

using namespace document;

/// Writes a mark: the number that readers count, or a text of its own.
void writeMark(RtfStream& rtf, const std::string& customMark) {
    if (customMark.empty())
        rtf.word("chftn");
    else
        rtf.text(customMark);
}

/// Writes the mark at the start of a note, and a blank after it.
void writeOwnMark(Story& story, const Note& note, const std::string& customMark) {
    const RunProperties& base = noteBase(story.state.styles, note);
    RunProperties look = markLook(story.state.styles, note);
    {
        const RtfGroup run(story.rtf);
        writeRunProperties(story.state, story.rtf, look, base, ScriptUse::Simple);
        writeMark(story.rtf, customMark);
    }
    const RtfGroup run(story.rtf);
    look.verticalPosition = VerticalPosition::Baseline;
    writeRunProperties(story.state, story.rtf, look, base, ScriptUse::Simple);
    story.rtf.text(" ");
}

void writeNote(Story& around, const Note& note, const std::string& customMark) {
    const RtfGroup group(around.rtf, "footnote");
    if (note.kind == NoteKind::Endnote)
        around.rtf.word("ftnalt");
    Story story{around.state, around.rtf, StoryKind::Note};
    writeBlocks(story, note.blocks, {[&] { writeOwnMark(story, note, customMark); }});
    writeDisplacedNotes(story);
    // The end of the group ends the last paragraph.
}

} // namespace

void writeNoteReference(Story& story, const NoteReference& reference, const RunProperties& base) {
    RtfState& state = story.state;
    if (reference.note >= state.document.notes.size())
        return;
    const bool isFirst = !state.isNoteWritten[reference.note];
    const bool isPossible = story.kind == StoryKind::Body && story.frameDepth == 0;
    state.isNoteWritten[reference.note] = true;
    const RtfGroup run(story.rtf);
    writeRunProperties(state, story.rtf, reference.properties, base, ScriptUse::Simple);
    if (isFirst && isPossible) {
        writeMark(story.rtf, reference.customMark);
        writeNote(story, state.document.notes[reference.note], reference.customMark);
        return;
    }
    story.rtf.text(plainMark(reference));
    if (isFirst)
        story.displacedNotes.push_back(reference.note);
}

void writeDisplacedNotes(Story& story) {
    // A note may bring further ones along.
    while (!story.displacedNotes.empty())
        for (const std::size_t index : std::exchange(story.displacedNotes, {}))
            writeBlocks(story, story.state.document.notes[index].blocks);
}

void reportLostNotes(RtfState& state) {
    for (std::size_t i = 0; i < state.isNoteWritten.size(); ++i)
        if (!state.isNoteWritten[i])
            state.diagnostics.add(DiagnosticKind::LinkUnresolved, state.document.notes[i].origin.page,
                                  "a note that nothing refers to was left out", state.document.notes[i].origin.box);
}

} // namespace orvane::write::rtf
