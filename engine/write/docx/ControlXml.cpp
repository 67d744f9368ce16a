#include "write/docx/ControlXml.h"

#include "base/Utf8.h"
#include "write/docx/RunXml.h"
#include "write/docx/TextXml.h"

#include <set>

namespace orvane::write::docx {
namespace {

using namespace document;

/// Word processors call a document damaged that has a longer name.
constexpr std::size_t kLongestName = 64;
constexpr const char* kBoxFont = "MS Gothic";
constexpr const char* kCheckedBox = "\u2612";
constexpr const char* kUncheckedBox = "\u2610";
/// What stands in an empty text field, so that it can be seen and clicked.
constexpr const char* kEmptyField = "\u00A0\u00A0\u00A0\u00A0\u00A0";

std::string shortened(const std::string& name) {
    return utf8FromUtf32(utf32FromUtf8(name).substr(0, kLongestName));
}

void writeCheckBox(XmlWriter& xml, const ContentControl& control) {
    const XmlElement box(xml, "w14:checkbox");
    xml.leaf("w14:checked", {{"w14:val", control.isChecked ? 1 : 0}});
    xml.leaf("w14:checkedState", {{"w14:val", "2612"}, {"w14:font", kBoxFont}});
    xml.leaf("w14:uncheckedState", {{"w14:val", "2610"}, {"w14:font", kBoxFont}});
}

void writeChoices(XmlWriter& xml, const ContentControl& control) {
    const XmlElement list(xml, "w:dropDownList");
    std::set<std::string_view> written;
    for (const std::string& choice : control.choices)
        if (!choice.empty() && written.insert(choice).second)
            xml.leaf("w:listItem", {{"w:displayText", choice}, {"w:value", choice}});
}

void writeDate(XmlWriter& xml, const Metadata& metadata) {
    const XmlElement date(xml, "w:date");
    xml.leaf("w:dateFormat", {{"w:val", "yyyy-MM-dd"}});
    xml.leaf("w:lid", {{"w:val", metadata.language.empty() ? "en-US" : metadata.language}});
    xml.leaf("w:storeMappedDataAs", {{"w:val", "dateTime"}});
    xml.leaf("w:calendar", {{"w:val", "gregorian"}});
}

void writeKind(Story& story, const ContentControl& control) {
    switch (control.kind) {
    case ControlKind::Text: {
        const XmlElement text(story.xml, "w:text");
        if (control.isMultiline)
            story.xml.attribute({"w:multiLine", 1});
        return;
    }
    case ControlKind::CheckBox:
        writeCheckBox(story.xml, control);
        return;
    case ControlKind::DropDown:
        writeChoices(story.xml, control);
        return;
    case ControlKind::Date:
        writeDate(story.xml, story.state.document.metadata);
        return;
    }
}

void writeProperties(Story& story, const ContentControl& control) {
    const XmlElement sdtPr(story.xml, "w:sdtPr");
    const std::string& title = control.tooltip.empty() ? control.name : control.tooltip;
    if (!title.empty())
        story.xml.leaf("w:alias", {{"w:val", shortened(title)}});
    if (!control.name.empty())
        story.xml.leaf("w:tag", {{"w:val", shortened(control.name)}});
    story.xml.leaf("w:id", {{"w:val", story.state.nextControlId++}});
    if (control.content.empty() && control.kind != ControlKind::CheckBox)
        story.xml.leaf("w:showingPlcHdr");
    writeKind(story, control);
}

void writePlaceholder(XmlWriter& xml, const ContentControl& control, const RunProperties& base) {
    const bool isBox = control.kind == ControlKind::CheckBox;
    RunProperties look = base;
    if (isBox)
        look.fontFamily = look.eastAsianFontFamily = look.complexFontFamily = kBoxFont;
    const XmlElement run(xml, "w:r");
    writeRunProperties(xml, look, &base, ScriptUse::Simple);
    if (isBox)
        writeRunText(xml, control.isChecked ? kCheckedBox : kUncheckedBox);
    else
        writeRunText(xml, kEmptyField);
}

} // namespace

void writeControl(Story& story, const ContentControl& control, const RunProperties& base,
                  const std::function<void()>& writeContent) {
    const XmlElement sdt(story.xml, "w:sdt");
    writeProperties(story, control);
    const XmlElement content(story.xml, "w:sdtContent");
    if (control.content.empty())
        writePlaceholder(story.xml, control, base);
    else
        writeContent();
}

} // namespace orvane::write::docx
