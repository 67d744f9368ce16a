#include "layout/assembly/FieldControl.h"

#include "base/TextLines.h"
#include "layout/text/FieldSigns.h"
#include "layout/text/FieldValue.h"

#include <algorithm>
#include <iterator>
#include <optional>
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

/// The text without what is out of sight.
std::string shownText(const std::vector<Inline>& inlines) {
    std::string text;
    for (const Inline& item : inlines)
        if (const auto* run = std::get_if<Text>(&item.value); run && !run->properties.isHidden)
            text += run->text;
    return text;
}

/// What is seen as it was typed, between what is out of sight before and behind it. As it is where the field says
/// something else.
std::vector<Inline> typedAsValue(const pdf::FormField& field, std::vector<Inline> seen, const std::string& text) {
    const auto isShown = [](const Inline& item) {
        const auto* run = std::get_if<Text>(&item.value);
        return run && !run->properties.isHidden;
    };
    const std::optional<ShownValue> value = findShown(field.value, text);
    const auto first = std::find_if(seen.begin(), seen.end(), isShown);
    const auto end = std::find_if(seen.rbegin(), seen.rend(), isShown).base();
    // Elsewhere the other parts of the value are seen in places of their own.
    const bool isWhole =
        value && (first == seen.begin()) == value->before.empty() && (end == seen.end()) == value->after.empty();
    if (!isWhole)
        return seen;
    std::vector<Inline> content(seen.begin(), first);
    std::vector<Inline> shown = typed(value->shown, std::get<Text>(first->value).properties);
    std::move(shown.begin(), shown.end(), std::back_inserter(content));
    content.insert(content.end(), end, seen.end());
    return content;
}

} // namespace

ContentControl controlOf(const pdf::FormField& field, std::vector<Inline> seen) {
    ContentControl control;
    control.kind = kindOf(field);
    control.name = field.name;
    control.tooltip = field.tooltip;
    control.choices = field.choices;
    control.choiceValues = field.choiceValues;
    control.isChecked = field.isOn;
    control.isMultiline = field.isMultiline;
    if (control.kind == ControlKind::CheckBox || control.kind == ControlKind::RadioButton) {
        control.content = std::move(seen); // for its look; each format has its own sign
        return control;
    }
    const std::string text = shownText(seen);
    if (lettersOf(text) != std::u32string{kEmptyField})
        control.content = typedAsValue(field, std::move(seen), text);
    return control;
}

} // namespace orvane::layout
