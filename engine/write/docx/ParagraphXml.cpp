#include "write/docx/ParagraphXml.h"

#include "write/ParagraphParts.h"
#include "write/docx/FloatXml.h"
#include "write/docx/FontTablePart.h"
#include "write/docx/FormulaXml.h"
#include "write/docx/InlineXml.h"
#include "write/docx/ParagraphPropertiesXml.h"
#include "write/docx/RunXml.h"
#include "write/docx/SectionXml.h"

namespace orvane::write::docx {
namespace {

using namespace document;

void writeOwnProperties(Story& story, const Paragraph& paragraph, const Style& style, const ParagraphLoad& load) {
    const XmlElement pPr(story.xml, "w:pPr", EmptyElement::Omit);
    const bool isDefaultStyle = &style == &story.state.styles.defaultStyle();
    ParagraphIdentity identity{isDefaultStyle ? std::string_view() : std::string_view(style.id), {}, nullptr};
    const ListLevel level = findLevel(story.state.document, paragraph.list);
    if (level.properties)
        identity.list = level.place;
    if (paragraph.dropCap)
        identity.dropCap = &*paragraph.dropCap;
    writeParagraphProperties(story.xml, paragraph.properties, inheritedProperties(style, level), identity);
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
    if (const Formula* formula = loneFormula(paragraph))
        writeLoneFormula(story, *formula, paragraph, style.run);
    else
        writeInlines(story, inlines.subspan(breaks), style.run);
    if (load.writeTail)
        load.writeTail();
}

void writeThinParagraph(Story& story, const ParagraphLoad& load) {
    writeParagraph(story, thinParagraph(story.state.styles.defaultStyle(), load), load);
}

} // namespace orvane::write::docx
