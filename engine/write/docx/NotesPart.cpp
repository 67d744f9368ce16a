#include "write/docx/NotesPart.h"

#include "write/NoteMarks.h"
#include "write/docx/BlockXml.h"
#include "write/docx/NumberingPart.h"
#include "write/docx/RunXml.h"
#include "write/docx/TextXml.h"
#include "write/docx/XmlPart.h"

#include <algorithm>
#include <utility>

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

using namespace document;

/// The words that footnotes and endnotes differ in.
struct NoteWords {
    NoteKind kind;
    const char* part;
    const char* root;
    const char* note;
    const char* reference;
    const char* mark;
};

constexpr NoteWords kFootnoteWords{NoteKind::Footnote, "footnotes",           "w:footnotes",
                                   "w:footnote",       "w:footnoteReference", "w:footnoteRef"};
constexpr NoteWords kEndnoteWords{NoteKind::Endnote, "endnotes",           "w:endnotes",
                                  "w:endnote",       "w:endnoteReference", "w:endnoteRef"};

const NoteWords& wordsOf(NoteKind kind) {
    return kind == NoteKind::Footnote ? kFootnoteWords : kEndnoteWords;
}

/// Notes count from 1 in the file: -1 and 0 are the lines that separate them from the text.
std::int64_t idOf(std::size_t note) {
    return static_cast<std::int64_t>(note) + 1;
}

void writeMarkText(XmlWriter& xml, const RunProperties& look, const RunProperties& base, const std::string& mark) {
    const XmlElement run(xml, "w:r");
    writeRunProperties(xml, look, &base, ScriptUse::Simple);
    writeRunText(xml, mark);
}

/// Writes the line between text and notes, or between a note and its beginning on the page before.
void writeSeparator(XmlWriter& xml, const NoteWords& words, int id, const char* type, const char* line) {
    const XmlElement note(xml, words.note, {{"w:type", type}, {"w:id", id}});
    const XmlElement paragraph(xml, "w:p");
    const XmlElement run(xml, "w:r");
    xml.leaf(line);
}

/// Writes the mark at the start of a note, and a blank after it.
void writeMark(Story& story, std::size_t index, const NoteWords& words) {
    const Note& note = story.state.document.notes[index];
    const RunProperties& base = noteBase(story.state.styles, note);
    const RunProperties look = markLook(story.state.styles, note);
    const std::string& customMark = story.state.noteUses[index].customMark;
    {
        const XmlElement run(story.xml, "w:r");
        writeRunProperties(story.xml, look, &base, ScriptUse::Simple);
        if (customMark.empty())
            story.xml.leaf(words.mark);
        else
            writeRunText(story.xml, customMark);
    }
    RunProperties plain = look;
    plain.verticalPosition = VerticalPosition::Baseline;
    writeMarkText(story.xml, plain, base, " ");
}

void addPart(DocumentState& state, Relationships& relationships, const NoteWords& words) {
    if (!hasNotes(state.document, words.kind))
        return;
    XmlPart part(fmt::format("word/{}.xml", words.part), words.part);
    Story story{state, part.xml(), part.relationships(), StoryKind::Note};
    startRoot(part.xml(), words.root);
    writeSeparator(part.xml(), words, -1, "separator", "w:separator");
    writeSeparator(part.xml(), words, 0, "continuationSeparator", "w:continuationSeparator");
    for (std::size_t i = 0; i < state.document.notes.size(); ++i) {
        const Note& note = state.document.notes[i];
        if (note.kind != words.kind || state.noteUses[i].home != NoteHome::NotesPart)
            continue;
        const XmlElement element(part.xml(), words.note, {{"w:id", idOf(i)}});
        writeBlocks(story, note.blocks, {[&] { writeMark(story, i, words); }});
        writeDisplacedNotes(story);
    }
    part.xml().end();
    part.addTo(state.package);
    relationships.add(words.part, fmt::format("{}.xml", words.part));
}

} // namespace

void writeNoteReference(Story& story, const NoteReference& reference, const RunProperties& base) {
    if (reference.note >= story.state.document.notes.size())
        return;
    NoteUse& use = story.state.noteUses[reference.note];
    const bool isFirst = use.home == NoteHome::Nowhere;
    const bool isPossible = story.kind == StoryKind::Body && story.frameDepth == 0;
    if (!isFirst || !isPossible) {
        writeMarkText(story.xml, reference.properties, base, plainMark(reference));
        if (isFirst) {
            story.displacedNotes.push_back(reference.note);
            use.home = NoteHome::Text;
        }
        return;
    }
    use = {NoteHome::NotesPart, reference.customMark};
    const NoteWords& words = wordsOf(story.state.document.notes[reference.note].kind);
    const XmlElement run(story.xml, "w:r");
    writeRunProperties(story.xml, reference.properties, &base, ScriptUse::Simple);
    {
        const XmlElement element(story.xml, words.reference);
        if (!reference.customMark.empty())
            story.xml.attribute({"w:customMarkFollows", 1});
        story.xml.attribute({"w:id", idOf(reference.note)});
    }
    writeRunText(story.xml, reference.customMark);
}

void writeDisplacedNotes(Story& story) {
    // A note may bring further ones along.
    while (!story.displacedNotes.empty())
        for (const std::size_t index : std::exchange(story.displacedNotes, {}))
            writeBlocks(story, story.state.document.notes[index].blocks);
}

void addNotesParts(DocumentState& state, Relationships& relationships) {
    addPart(state, relationships, kFootnoteWords);
    addPart(state, relationships, kEndnoteWords);
    for (std::size_t i = 0; i < state.noteUses.size(); ++i)
        if (state.noteUses[i].home == NoteHome::Nowhere)
            state.diagnostics.add(DiagnosticKind::LinkUnresolved, state.document.notes[i].origin.page,
                                  "a note that nothing refers to was left out", state.document.notes[i].origin.box);
}

void writeNoteNumbering(XmlWriter& xml, const NoteNumbering& numbering, NumberFormat usual) {
    if (numbering.format != usual)
        xml.leaf("w:numFmt", {{"w:val", numberFormatName(numbering.format)}});
    if (numbering.count != CountStart::Continuous)
        xml.leaf("w:numRestart", {{"w:val", numbering.count == CountStart::EachPage ? "eachPage" : "eachSect"}});
}

bool hasNotes(const Document& document, NoteKind kind) {
    return std::any_of(document.notes.begin(), document.notes.end(),
                       [kind](const Note& note) { return note.kind == kind; });
}

} // namespace orvane::write::docx
