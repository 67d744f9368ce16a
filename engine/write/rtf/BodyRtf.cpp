#include "write/rtf/BodyRtf.h"

#include "write/rtf/BlockRtf.h"
#include "write/rtf/InfoRtf.h"
#include "write/rtf/ListTable.h"
#include "write/rtf/NoteRtf.h"
#include "write/rtf/ParagraphRtf.h"
#include "write/rtf/RunningTextRtf.h"
#include "write/rtf/SectionRtf.h"
#include "write/rtf/ShapeProperties.h"
#include "write/rtf/StyleSheet.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

using namespace document;

constexpr int kDefaultTab = 720;

bool hasNotes(const Document& document, NoteKind kind) {
    return std::any_of(document.notes.begin(), document.notes.end(),
                       [kind](const Note& note) { return note.kind == kind; });
}

/// Source: RTF 1.9.1, \fet: footnotes only, endnotes only, both.
int noteKinds(const Document& document) {
    if (!hasNotes(document, NoteKind::Endnote))
        return 0;
    return hasNotes(document, NoteKind::Footnote) ? 2 : 1;
}

/// Writes the line between text and notes, and between a note and its beginning on the page before.
void writeSeparators(RtfStream& rtf, const Document& document) {
    const auto write = [&rtf](const char* destination, const char* line) {
        const RtfDestination separator(rtf, destination);
        rtf.word("pard");
        rtf.word("plain");
        rtf.word(line);
    };
    if (hasNotes(document, NoteKind::Footnote)) {
        write("ftnsep", "chftnsep");
        write("ftnsepc", "chftnsepc");
    }
    if (hasNotes(document, NoteKind::Endnote)) {
        write("aftnsep", "chftnsep");
        write("aftnsepc", "chftnsepc");
    }
}

/// The paper's colour is the filling of a shape that stands for the page.
/// Source: RTF 1.9.1, "Document Formatting Properties", \background and \viewbksp.
void writePageColor(RtfStream& rtf, const Color& color) {
    constexpr int kRectangle = 1;
    rtf.word("viewbksp", 1);
    const RtfDestination background(rtf, "background");
    const RtfGroup shape(rtf, "shp");
    const RtfDestination instance(rtf, "shpinst");
    writeShapeProperty(rtf, "shapeType", kRectangle);
    writeFill(rtf, color, 1);
    writeShapeProperty(rtf, "fBackground", 1);
}

void writeDocumentProperties(RtfState& state, RtfStream& rtf, const Section& first, const RunningTexts& running) {
    writeDocumentPage(rtf, first);
    rtf.word("deftab", kDefaultTab);
    rtf.word("widowctrl");
    if (state.document.dividesWords)
        rtf.word("hyphauto", 1);
    if (state.document.spreadsBrokenLines)
        rtf.word("expshrtn");
    // Of the spaces below one paragraph and above the next the larger counts, as in the other formats.
    rtf.word("htmautsp");
    rtf.word("ftnbj");
    writeNoteNumbering(rtf, "ftn", state.document.footnoteNumbering);
    rtf.word("aenddoc");
    writeNoteNumbering(rtf, "aftn", state.document.endnoteNumbering);
    rtf.word("fet", noteKinds(state.document));
    if (running.hasEvenPages() || state.document.hasMirroredMargins)
        rtf.word("facingp");
    if (state.document.hasMirroredMargins)
        rtf.word("margmirror");
    rtf.word("viewkind", 1);
    if (state.document.pageColor)
        writePageColor(rtf, *state.document.pageColor);
    writeSeparators(rtf, state.document);
    rtf.newLine();
}

/// A section's properties stand before its text; its last paragraph ends it.
void writeSections(RtfState& state, RtfStream& rtf, const std::vector<Section>& sections) {
    RunningTexts running(state.document);
    writeDocumentProperties(state, rtf, sections.front(), running);
    Story story{state, rtf};
    for (std::size_t i = 0; i < sections.size(); ++i) {
        writeSectionProperties(state, rtf, sections[i]);
        running.write(state, rtf, sections[i]);
        writeBlocks(story, sections[i].blocks);
        endParagraph(story, i + 1 == sections.size() ? "par" : "sect");
    }
}

} // namespace

void writeBody(RtfState& state, RtfStream& rtf) {
    writeStyleSheet(state, rtf);
    rtf.newLine();
    writeListTables(state, rtf);
    writeInfo(rtf, state.document.metadata);
    rtf.newLine();
    if (state.document.sections.empty())
        writeSections(state, rtf, {Section{}});
    else
        writeSections(state, rtf, state.document.sections);
    reportLostNotes(state);
}

} // namespace orvane::write::rtf
