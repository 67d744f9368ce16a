#include "write/docx/ControlXml.h"

#include "base/Utf8.h"
#include "write/docx/RunXml.h"
#include "write/docx/TextXml.h"

#include <set>
#include <string_view>
#include <variant>

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

using namespace document;

/// Word processors call a document damaged that has a longer name.
constexpr std::size_t kLongestName = 64;
constexpr const char* kBoxFont = "MS Gothic";
/// What stands in an empty text field, so that it can be seen and clicked.
constexpr const char* kEmptyField = "\u00A0\u00A0\u00A0\u00A0\u00A0";

std::string shortened(const std::string& name) {
    return utf8FromUtf32(utf32FromUtf8(name).substr(0, kLongestName));
}

/// What a box shows, as a code point.
struct BoxSigns {
    char32_t checked = 0;
    char32_t unchecked = 0;
};

bool isBox(const ContentControl& control) {
    return control.kind == ControlKind::CheckBox || control.kind == ControlKind::RadioButton;
}

BoxSigns signsOf(const ContentControl& control) {
    return control.kind == ControlKind::RadioButton ? BoxSigns{0x25C9, 0x25CB} : BoxSigns{0x2612, 0x2610};
}

void writeCheckBox(XmlWriter& xml, const ContentControl& control) {
    const auto [checked, unchecked] = signsOf(control);
    const XmlElement box(xml, "w14:checkbox");
    xml.leaf("w14:checked", {{"w14:val", control.isChecked ? 1 : 0}});
    xml.leaf("w14:checkedState", {{"w14:val", fmt::format("{:04X}", std::uint32_t{checked})}, {"w14:font", kBoxFont}});
    xml.leaf("w14:uncheckedState",
             {{"w14:val", fmt::format("{:04X}", std::uint32_t{unchecked})}, {"w14:font", kBoxFont}});
}

void writeChoices(XmlWriter& xml, const ContentControl& control) {
    const XmlElement list(xml, control.kind == ControlKind::ComboBox ? "w:comboBox" : "w:dropDownList");
    std::set<std::string_view> texts, values; // each of a list's items has its own
    for (std::size_t i = 0; i < control.choices.size(); ++i) {
        const std::string& choice = control.choices[i];
        const bool hasValue = i < control.choiceValues.size() && !control.choiceValues[i].empty();
        const std::string& value = hasValue ? control.choiceValues[i] : choice;
        if (!choice.empty() && !texts.contains(choice) && values.insert(value).second) {
            texts.insert(choice);
            xml.leaf("w:listItem", {{"w:displayText", choice}, {"w:value", value}});
        }
    }
}

void writeDate(XmlWriter& xml, const Metadata& metadata) {
    const XmlElement date(xml, "w:date");
    xml.leaf("w:dateFormat", {{"w:val", "yyyy-MM-dd"}});
    xml.leaf("w:lid", {{"w:val", metadata.language.empty() ? "en-US" : metadata.language}});
    xml.leaf("w:storeMappedDataAs", {{"w:val", "dateTime"}});
    xml.leaf("w:calendar", {{"w:val", "gregorian"}});
}

/// A control of plain text has one look; word processors join its lines.
bool isPlain(const ContentControl& control) {
    return control.content.empty() ||
           (control.content.size() == 1 && std::holds_alternative<Text>(control.content.front().value));
}

void writeKind(Story& story, const ContentControl& control) {
    switch (control.kind) {
    case ControlKind::Text: {
        if (!isPlain(control))
            return;
        const XmlElement text(story.xml, "w:text");
        if (control.isMultiline)
            story.xml.attribute({"w:multiLine", 1});
        return;
    }
    case ControlKind::CheckBox:
    case ControlKind::RadioButton:
        writeCheckBox(story.xml, control);
        return;
    case ControlKind::DropDown:
    case ControlKind::ComboBox:
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
    if (control.content.empty() && !isBox(control))
        story.xml.leaf("w:showingPlcHdr");
    writeKind(story, control);
}

/// The look of what stands in the control.
const RunProperties& lookOf(const ContentControl& control, const RunProperties& base) {
    const auto* text = control.content.empty() ? nullptr : std::get_if<Text>(&control.content.front().value);
    return text ? text->properties : base;
}

void writePlaceholder(XmlWriter& xml, const ContentControl& control, const RunProperties& base) {
    RunProperties look = lookOf(control, base);
    if (isBox(control))
        look.fontFamily = look.eastAsianFontFamily = look.complexFontFamily = kBoxFont;
    const XmlElement run(xml, "w:r");
    writeRunProperties(xml, look, &base, ScriptUse::Simple);
    if (isBox(control)) {
        const auto [checked, unchecked] = signsOf(control);
        writeRunText(xml, utf8FromUtf32(std::u32string{control.isChecked ? checked : unchecked}));
    } else
        writeRunText(xml, kEmptyField);
}

template<typename Content>
void writeRun(XmlWriter& xml, const RunProperties& look, const RunProperties& base, const Content& content) {
    const XmlElement run(xml, "w:r");
    writeRunProperties(xml, look, &base, ScriptUse::Simple);
    content();
}

/// A box that is no field of a form, as the field that word processors draw a box for.
void writeDrawnBox(XmlWriter& xml, const ContentControl& control, const RunProperties& base) {
    const RunProperties& look = lookOf(control, base);
    writeRun(xml, look, base, [&] {
        const XmlElement begin(xml, "w:fldChar", {{"w:fldCharType", "begin"}});
        const XmlElement data(xml, "w:ffData");
        xml.leaf("w:enabled");
        xml.leaf("w:calcOnExit", {{"w:val", 0}});
        const XmlElement box(xml, "w:checkBox");
        xml.leaf("w:sizeAuto");
        xml.leaf("w:default", {{"w:val", control.isChecked ? 1 : 0}});
    });
    writeRun(xml, look, base, [&] {
        const XmlElement code(xml, "w:instrText", {{"xml:space", "preserve"}});
        xml.text(" FORMCHECKBOX ");
    });
    for (const char* type : {"separate", "end"})
        writeRun(xml, look, base, [&] { xml.leaf("w:fldChar", {{"w:fldCharType", type}}); });
}

} // namespace

void writeControl(Story& story, const ContentControl& control, const RunProperties& base,
                  const std::function<void()>& writeContent) {
    if (control.kind == ControlKind::CheckBox && control.name.empty()) {
        writeDrawnBox(story.xml, control, base);
        return;
    }
    const XmlElement sdt(story.xml, "w:sdt");
    writeProperties(story, control);
    const XmlElement content(story.xml, "w:sdtContent");
    if (isBox(control) || control.content.empty())
        writePlaceholder(story.xml, control, base);
    else
        writeContent();
}

} // namespace orvane::write::docx
