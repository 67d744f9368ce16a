#include "write/docx/ParagraphXml.h"

#include "write/docx/FloatXml.h"
#include "write/docx/FontTablePart.h"
#include "write/docx/InlineXml.h"
#include "write/docx/NumberingPart.h"
#include "write/docx/ParagraphPropertiesXml.h"
#include "write/docx/RunXml.h"
#include "write/docx/SectionXml.h"

namespace orvane::write::docx {
namespace {

using namespace document;

/// A line's height in a thin paragraph.
constexpr Twips kThinLine{20};

/// What a paragraph stands in without properties of its own: its style's, with the indents of its list.
ParagraphProperties inheritedProperties(const Style& style, const NumberingLevel& level) {
    ParagraphProperties inherited = style.paragraph;
    inherited.indentStart = level.indentStart;
    inherited.firstLine = level.firstLine;
    return inherited;
}

void writeOwnProperties(Story& story, const Paragraph& paragraph, const Style& style, const ParagraphLoad& load) {
    const XmlElement pPr(story.xml, "w:pPr", EmptyElement::Omit);
    const bool isDefaultStyle = &style == &story.state.styles.defaultStyle();
    ParagraphIdentity identity{isDefaultStyle ? std::string_view() : std::string_view(style.id), {}};
    if (const ListLevel level = findLevel(story.state.document, paragraph.list); level.properties) {
        identity.list = level.place;
        writeParagraphProperties(story.xml, paragraph.properties, inheritedProperties(style, *level.properties),
                                 identity);
    } else {
        writeParagraphProperties(story.xml, paragraph.properties, style.paragraph, identity);
    }
    collectFonts(story.state, paragraph.markProperties);
    writeRunProperties(story.xml, paragraph.markProperties, &style.run, ScriptUse::Simple);
    if (load.endedSection)
        writeSection(story.state, story.xml, story.relationships, *load.endedSection);
}

void writeLoad(Story& story, const ParagraphLoad& load) {
    for (const Block* block : load.floats)
        writeFloat(story, *block);
    if (load.writeLead)
        load.writeLead();
}

/// How many inlines at the start lead to the page or column that the paragraph's text stands on.
std::size_t leadingBreaks(const Paragraph& paragraph) {
    std::size_t count = 0;
    for (const Inline& item : paragraph.inlines) {
        const auto* br = std::get_if<Break>(&item.value);
        if (!br || br->kind == BreakKind::Line)
            break;
        ++count;
    }
    return count;
}

} // namespace

void writeParagraph(Story& story, const Paragraph& paragraph, const ParagraphLoad& load) {
    const Style& style = story.state.styles.at(paragraph.style);
    const XmlElement p(story.xml, "w:p");
    writeOwnProperties(story, paragraph, style, load);
    // What is anchored before a break stays on the page before it.
    const std::span<const Inline> inlines = paragraph.inlines;
    const std::size_t breaks = leadingBreaks(paragraph);
    writeInlines(story, inlines.first(breaks), style.run);
    writeLoad(story, load);
    writeInlines(story, inlines.subspan(breaks), style.run);
    if (load.writeTail)
        load.writeTail();
}

void writeThinParagraph(Story& story, const ParagraphLoad& load) {
    const Style& style = story.state.styles.defaultStyle();
    Paragraph paragraph;
    paragraph.markProperties = style.run;
    // A mark is text, which wants to be seen.
    if (!load.writeLead) {
        paragraph.properties.lineSpacing = {LineSpacingRule::Exact, 1.0, kThinLine};
        paragraph.markProperties.size = HalfPoints(2);
    }
    writeParagraph(story, paragraph, load);
}

} // namespace orvane::write::docx
