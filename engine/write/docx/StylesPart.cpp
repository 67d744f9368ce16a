#include "write/docx/StylesPart.h"

#include "write/docx/FontTablePart.h"
#include "write/docx/ParagraphPropertiesXml.h"
#include "write/docx/RunXml.h"
#include "write/docx/XmlPart.h"

#include <algorithm>

namespace orvane::write::docx {
namespace {

using namespace document;

/// Whether word processors know a style of this name by themselves.
bool isBuiltIn(const std::string& name) {
    constexpr std::string_view kNames[] = {
        "Normal",      "Title",     "Subtitle",    "Quote",         "List Paragraph",
        "caption",     "header",    "footer",      "footnote text", "endnote text",
        "TOC Heading", "Body Text", "List Bullet", "List Number",   "annotation text",
    };
    if (std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames))
        return true;
    const bool isNumbered = name.starts_with("heading ") || name.starts_with("toc ");
    return isNumbered && name.size() == name.find(' ') + 2 && name.back() >= '1' && name.back() <= '9';
}

/// What stands below all styles: the font, size and language of the default style.
RunProperties runDefaults(const DocumentState& state) {
    const RunProperties& standard = state.styles.defaultStyle().run;
    RunProperties defaults;
    defaults.fontFamily = standard.fontFamily;
    defaults.eastAsianFontFamily = standard.eastAsianFontFamily;
    defaults.complexFontFamily = standard.complexFontFamily;
    defaults.size = standard.size;
    defaults.language = state.document.metadata.language;
    return defaults;
}

void writeDefaults(XmlWriter& xml, const RunProperties& defaults) {
    const XmlElement docDefaults(xml, "w:docDefaults");
    {
        RunProperties nothing;
        nothing.size = HalfPoints(0);
        const XmlElement run(xml, "w:rPrDefault");
        writeRunProperties(xml, defaults, &nothing, ScriptUse::Complex);
    }
    xml.leaf("w:pPrDefault");
}

void writeHead(const DocumentState& state, XmlWriter& xml, const Style& style) {
    xml.attribute({"w:type", "paragraph"});
    if (&style == &state.styles.defaultStyle())
        xml.attribute({"w:default", 1});
    if (!isBuiltIn(style.name))
        xml.attribute({"w:customStyle", 1});
    xml.attribute({"w:styleId", style.id});
    xml.leaf("w:name", {{"w:val", style.name.empty() ? style.id : style.name}});
    if (const Style* parent = state.styles.parentOf(style))
        xml.leaf("w:basedOn", {{"w:val", parent->id}});
    if (!style.next.empty() && style.next != style.id && state.styles.isKnown(style.next))
        xml.leaf("w:next", {{"w:val", style.next}});
    xml.leaf("w:qFormat");
}

void writeStyle(DocumentState& state, XmlWriter& xml, const Style& style, const RunProperties& defaults) {
    const Style* parent = state.styles.parentOf(style);
    const ParagraphProperties plain;
    const XmlElement element(xml, "w:style");
    writeHead(state, xml, style);
    {
        const XmlElement pPr(xml, "w:pPr", EmptyElement::Omit);
        writeParagraphProperties(xml, style.paragraph, parent ? parent->paragraph : plain, {});
    }
    collectFonts(state, style.run);
    writeRunProperties(xml, style.run, parent ? &parent->run : &defaults, ScriptUse::Complex);
}

} // namespace

void addStylesPart(DocumentState& state, Relationships& relationships) {
    XmlPart part("word/styles.xml", "styles");
    startRoot(part.xml(), "w:styles");
    const RunProperties defaults = runDefaults(state);
    writeDefaults(part.xml(), defaults);
    if (state.document.styles.empty())
        writeStyle(state, part.xml(), state.styles.defaultStyle(), defaults);
    for (const Style& style : state.document.styles)
        if (&state.styles.at(style.id) == &style)
            writeStyle(state, part.xml(), style, defaults);
    part.xml().end();
    part.addTo(state.package);
    relationships.add("styles", "styles.xml");
}

} // namespace orvane::write::docx
