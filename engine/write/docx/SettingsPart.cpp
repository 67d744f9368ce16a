#include "write/docx/SettingsPart.h"

#include "write/docx/NotesPart.h"
#include "write/docx/XmlPart.h"

namespace orvane::write::docx {
namespace {

/// The edition whose layout rules hold. Later rules place tables and lines as a new document has them.
constexpr const char* kCompatibilityMode = "15";

void writeNoteProperties(XmlWriter& xml, std::string_view properties, std::string_view note,
                         const document::NoteNumbering& numbering, document::NumberFormat usual) {
    const XmlElement element(xml, properties);
    writeNoteNumbering(xml, numbering, usual);
    // The lines that separate notes from the text.
    xml.leaf(note, {{"w:id", -1}});
    xml.leaf(note, {{"w:id", 0}});
}

void writeCompatibility(XmlWriter& xml, const document::Document& document) {
    const XmlElement compat(xml, "w:compat");
    if (!document.spreadsBrokenLines)
        xml.leaf("w:doNotExpandShiftReturn");
    const auto set = [&xml](const char* name, const char* value) {
        xml.leaf("w:compatSetting",
                 {{"w:name", name}, {"w:uri", "http://schemas.microsoft.com/office/word"}, {"w:val", value}});
    };
    set("compatibilityMode", kCompatibilityMode);
    set("overrideTableStyleFontSizeAndJustification", "1");
    set("enableOpenTypeFeatures", "1");
    set("doNotFlipMirrorIndents", "1");
    set("differentiateMultirowTableHeaders", "1");
}

} // namespace

void addSettingsPart(DocumentState& state, Relationships& relationships) {
    XmlPart part("word/settings.xml", "settings");
    XmlWriter& xml = part.xml();
    startRoot(xml, "w:settings");
    xml.leaf("w:zoom", {{"w:percent", 100}});
    if (state.document.pageColor)
        xml.leaf("w:displayBackgroundShape");
    if (!state.document.fonts.empty()) {
        xml.leaf("w:embedTrueTypeFonts");
        xml.leaf("w:saveSubsetFonts");
    }
    if (state.document.hasMirroredMargins)
        xml.leaf("w:mirrorMargins");
    xml.leaf("w:defaultTabStop", {{"w:val", 720}});
    if (state.document.dividesWords)
        xml.leaf("w:autoHyphenation");
    if (state.runningTexts.hasEvenPages())
        xml.leaf("w:evenAndOddHeaders");
    xml.leaf("w:characterSpacingControl", {{"w:val", "doNotCompress"}});
    if (hasNotes(state.document, document::NoteKind::Footnote))
        writeNoteProperties(xml, "w:footnotePr", "w:footnote", state.document.footnoteNumbering,
                            document::NumberFormat::Decimal);
    if (hasNotes(state.document, document::NoteKind::Endnote))
        writeNoteProperties(xml, "w:endnotePr", "w:endnote", state.document.endnoteNumbering,
                            document::NumberFormat::LowerRoman);
    writeCompatibility(xml, state.document);
    xml.leaf("w:decimalSymbol", {{"w:val", "."}});
    xml.leaf("w:listSeparator", {{"w:val", ","}});
    xml.end();
    part.addTo(state.package);
    relationships.add("settings", "settings.xml");
}

} // namespace orvane::write::docx
