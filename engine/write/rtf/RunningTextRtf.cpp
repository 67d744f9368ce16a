#include "write/rtf/RunningTextRtf.h"

#include "write/rtf/BlockRtf.h"
#include "write/rtf/NoteRtf.h"
#include "write/rtf/ParagraphRtf.h"

#include <algorithm>

namespace orvane::write::rtf {
namespace {

using namespace document;

const std::vector<Block>* pointerTo(const std::optional<std::vector<Block>>& blocks) {
    return blocks ? &*blocks : nullptr;
}

void writeBlocksOf(RtfState& state, RtfStream& rtf, const std::string& destination, const std::vector<Block>& blocks) {
    const RtfGroup group(rtf, destination);
    Story story{state, rtf, StoryKind::RunningText};
    writeBlocks(story, blocks);
    writeDisplacedNotes(story);
    endParagraph(story, "par");
}

/// What tells two running texts apart: all of one but the bytes of its pictures.
std::string fingerprint(const RtfState& state, const std::string& destination, const std::vector<Block>& blocks) {
    std::string text;
    RtfStream rtf([&text](std::string_view piece) { text += piece; });
    Diagnostics ignored;
    RtfState probe(state.document, state.pictures, state.head, Pass::Survey, ignored);
    writeBlocksOf(probe, rtf, destination, blocks);
    rtf.finish();
    return text;
}

} // namespace

RunningTexts::RunningTexts(const Document& document)
    : m_hasEvenPages(std::any_of(document.sections.begin(), document.sections.end(), [](const Section& section) {
        return section.header.evenPages || section.footer.evenPages;
    })) {}

void RunningTexts::write(RtfState& state, RtfStream& rtf, const Section& section) {
    const bool hasFirstPage = section.header.firstPage || section.footer.firstPage;
    writeSide(state, rtf, "header", section.header, hasFirstPage);
    writeSide(state, rtf, "footer", section.footer, hasFirstPage);
}

void RunningTexts::writeSide(RtfState& state, RtfStream& rtf, const std::string& side, const RunningText& text,
                             bool hasFirstPage) {
    // Where a page has no text of its own kind the standard one stands there too; the format would leave it empty.
    const Blocks* standard = pointerTo(text.standard);
    writeText(state, rtf, m_hasEvenPages ? side + "r" : side, standard);
    if (m_hasEvenPages)
        writeText(state, rtf, side + "l", text.evenPages ? pointerTo(text.evenPages) : standard);
    if (hasFirstPage)
        writeText(state, rtf, side + "f", text.firstPage ? pointerTo(text.firstPage) : standard);
}

void RunningTexts::writeText(RtfState& state, RtfStream& rtf, const std::string& destination, const Blocks* blocks) {
    std::string& current = m_current[destination];
    // Without a text of its own the section before would go on: what it has ends with an empty one.
    static const Blocks kNothing;
    if (!blocks && current.empty())
        return;
    const Blocks& wanted = blocks ? *blocks : kNothing;
    std::string print = fingerprint(state, destination, wanted);
    if (print == current)
        return;
    current = std::move(print);
    writeBlocksOf(state, rtf, destination, wanted);
}

} // namespace orvane::write::rtf
