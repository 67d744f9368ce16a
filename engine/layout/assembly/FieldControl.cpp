#include "layout/assembly/FieldControl.h"

#include "base/Utf8.h"
#include "layout/text/FieldSigns.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace orvane::layout {
namespace {

using document::ContentControl;
using document::ControlKind;
using document::Inline;
using document::Text;

ControlKind kindOf(const pdf::FormField& field) {
    switch (field.kind) {
    case pdf::FieldKind::CheckBox:
    case pdf::FieldKind::RadioButton:
        return ControlKind::CheckBox;
    case pdf::FieldKind::ComboBox:
    case pdf::FieldKind::ListBox:
        return ControlKind::DropDown;
    default:
        return field.dateFormat.empty() ? ControlKind::Text : ControlKind::Date;
    }
}

/// The characters without blanks: the cells of a comb part them.
std::u32string lettersOf(std::string_view text) {
    std::u32string letters = utf32FromUtf8(std::string(text));
    std::erase_if(letters, [](char32_t c) { return c <= U' ' || c == U'\u00A0'; });
    return letters;
}

std::string textOf(const std::vector<Inline>& inlines) {
    std::string text;
    for (const Inline& item : inlines)
        if (const auto* run = std::get_if<Text>(&item.value))
            text += run->text;
    return text;
}

/// The value in the look of what stands there, a line for each of its lines.
std::vector<Inline> typed(std::string_view value, const document::RunProperties& look) {
    std::vector<Inline> inlines;
    while (true) {
        const std::size_t end = value.find_first_of("\r\n");
        if (const std::string_view line = value.substr(0, end); !line.empty())
            inlines.push_back({Text{std::string(line), look}});
        if (end == std::string_view::npos)
            return inlines;
        inlines.push_back({document::Break{document::BreakKind::Line}});
        value.remove_prefix(end + (value.substr(end, 2) == "\r\n" ? 2 : 1));
    }
}

} // namespace

ContentControl controlOf(const pdf::FormField& field, std::vector<Inline> seen) {
    ContentControl control;
    control.kind = kindOf(field);
    control.name = field.name;
    control.tooltip = field.tooltip;
    control.choices = field.choices;
    control.isChecked = field.isOn;
    control.isMultiline = field.isMultiline;
    if (control.kind == ControlKind::CheckBox)
        return control; // each format has its own sign
    const std::string text = textOf(seen);
    const std::u32string letters = lettersOf(text);
    const auto* first = seen.empty() ? nullptr : std::get_if<Text>(&seen.front().value);
    const std::u32string value = lettersOf(field.value);
    if (letters == std::u32string{kEmptyField})
        return control;
    if (first && letters == value && !value.empty())
        control.content = typed(field.value, first->properties);
    else
        control.content = std::move(seen);
    return control;
}

} // namespace orvane::layout
