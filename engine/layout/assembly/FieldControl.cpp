#include "layout/assembly/FieldControl.h"

#include "base/TextLines.h"
#include "base/Utf8.h"
#include "document/InlineText.h"
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
        return ControlKind::CheckBox;
    case pdf::FieldKind::RadioButton:
        return ControlKind::RadioButton;
    case pdf::FieldKind::ComboBox:
        return field.isEditable ? ControlKind::ComboBox : ControlKind::DropDown;
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

/// The value in the look of what stands there, a line for each of its lines.
std::vector<Inline> typed(std::string_view value, const document::RunProperties& look) {
    const std::vector<std::string_view> lines = linesOf(value);
    std::vector<Inline> inlines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0)
            inlines.push_back({document::Break{document::BreakKind::Line}});
        if (!lines[i].empty())
            inlines.push_back({Text{std::string(lines[i]), look}});
    }
    return inlines;
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
    if (control.kind == ControlKind::CheckBox || control.kind == ControlKind::RadioButton)
        return control; // each format has its own sign
    const std::u32string letters = lettersOf(document::plainText(seen));
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
