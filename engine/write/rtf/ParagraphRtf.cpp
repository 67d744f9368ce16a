#include "write/rtf/ParagraphRtf.h"

#include "write/ListLevels.h"
#include "write/ParagraphParts.h"
#include "write/rtf/FloatRtf.h"
#include "write/rtf/InlineRtf.h"
#include "write/rtf/ParagraphPropertiesRtf.h"
#include "write/rtf/RunRtf.h"

#include <algorithm>
#include <span>

namespace orvane::write::rtf {
namespace {

using namespace document;

/// Writes the label for readers that do not count lists themselves.
void writeListText(Story& story, const Paragraph& paragraph, const ListLevel& level) {
    const RtfGroup group(story.rtf, "listtext");
    story.rtf.word("pard");
    story.rtf.word("plain");
    writeRunProperties(story.state, story.rtf, level.properties->run.value_or(paragraph.markProperties), plainRun(),
                       ScriptUse::Simple);
    story.rtf.text(story.state.labels.next(*paragraph.list));
    story.rtf.text(level.properties->isTabBehindLabel() ? "\t" : " ");
}

/// Source: RTF 1.9.1, "Paragraph Formatting Properties" (drop caps), "Positioned Objects and Frames".
void writeDropCap(RtfStream& rtf, const DropCap& dropCap) {
    const bool isInMargin = dropCap.kind == DropCapKind::InMargin;
    rtf.word("pvpara");
    rtf.word(isInMargin ? "phpg" : "phcol");
    rtf.word("wraparound");
    rtf.word("dfrmtxtx", dropCap.distance.value);
    rtf.word("dropcapli", std::clamp(dropCap.lines, 1, kMostDropCapLines));
    rtf.word("dropcapt", isInMargin ? 2 : 1);
}

void writeProperties(Story& story, const Paragraph& paragraph, const Style& style) {
    RtfStream& rtf = story.rtf;
    const ListLevel level = findLevel(story.state.document, paragraph.list);
    rtf.word("pard");
    rtf.word("plain");
    rtf.word("s", story.state.numberOf(style));
    if (story.tableDepth > 0) {
        rtf.word("intbl");
        rtf.word("itap", story.tableDepth);
    }
    if (level.properties) {
        rtf.word("ls", level.place.id);
        rtf.word("ilvl", level.place.level);
    }
    if (paragraph.dropCap)
        writeDropCap(rtf, *paragraph.dropCap);
    writeParagraphProperties(story.state, rtf, paragraph.properties, inheritedProperties(style, level));
    writeRunProperties(story.state, rtf, style.run, plainRun(), ScriptUse::Complex);
}

/// Boxes of text stand first: a reader that finds a picture before them parts the paragraph there, and with it the
/// page. What lies above what is told by its number, not by the order in the file.
void writeFloats(Story& story, const std::vector<const Block*>& floats) {
    for (const Block* block : floats)
        if (std::holds_alternative<Frame>(block->value))
            writeFloat(story, *block);
    for (const Block* block : floats)
        if (!std::holds_alternative<Frame>(block->value))
            writeFloat(story, *block);
}

} // namespace

void writeParagraph(Story& story, const Paragraph& paragraph, const ParagraphLoad& load) {
    endParagraph(story, "par");
    const Style& style = story.state.styles.at(paragraph.style);
    writeProperties(story, paragraph, style);
    if (const ListLevel level = findLevel(story.state.document, paragraph.list); level.properties)
        writeListText(story, paragraph, level);
    // What is anchored before a break stays on the page before it.
    const std::span<const Inline> inlines = paragraph.inlines;
    const std::size_t breaks = leadingBreaks(paragraph);
    writeInlines(story, inlines.first(breaks), style.run);
    writeFloats(story, load.floats);
    if (load.writeLead)
        load.writeLead();
    writeInlines(story, inlines.subspan(breaks), style.run);
    if (load.writeTail) {
        load.writeTail();
        // The group that has ended began in another paragraph and brings its properties back.
        writeProperties(story, paragraph, style);
    }
    story.openMark = paragraph.markProperties;
    story.openBase = &style.run;
}

void endParagraph(Story& story, std::string_view word) {
    if (!story.openMark)
        return;
    {
        const RtfGroup mark(story.rtf);
        writeRunProperties(story.state, story.rtf, *story.openMark, *story.openBase, ScriptUse::Simple);
        story.rtf.word(word);
    }
    story.rtf.newLine();
    story.openMark.reset();
}

} // namespace orvane::write::rtf
