#include "write/FormFields.h"

#include "base/Utf8.h"
#include "document/InlineText.h"
#include "write/LinkNames.h"

#include <algorithm>

namespace orvane::write {
namespace {

using namespace document;

constexpr std::size_t kLongestName = 20;
constexpr std::size_t kLongestHelp = 138;
constexpr std::size_t kMostChoices = 25;
constexpr std::size_t kLongestChoice = 50;

std::string shortened(const std::string& text, std::size_t length) {
    return utf8FromUtf32(utf32FromUtf8(text).substr(0, length));
}

/// Makes a list of the field, where one of its choices is the one shown.
void takeChoices(FormField& field, const ContentControl& control) {
    const std::size_t count = std::min(control.choices.size(), kMostChoices);
    const auto end = control.choices.begin() + static_cast<std::ptrdiff_t>(count);
    const auto shown = std::find(control.choices.begin(), end, plainText(control.content));
    if (shown == end)
        return;
    field.type = FormFieldType::DropDown;
    field.shownChoice = static_cast<std::size_t>(shown - control.choices.begin());
    for (auto choice = control.choices.begin(); choice != end; ++choice)
        field.choices.push_back(shortened(*choice, kLongestChoice));
}

} // namespace

FormField formFieldOf(const ContentControl& control) {
    FormField field;
    field.name = shortened(bookmarkName(control.name), kLongestName);
    field.help = shortened(control.tooltip, kLongestHelp);
    field.isDate = control.kind == ControlKind::Date;
    field.isChecked = control.isChecked;
    if (control.kind == ControlKind::CheckBox || control.kind == ControlKind::RadioButton)
        field.type = FormFieldType::CheckBox;
    else if (control.kind == ControlKind::DropDown || control.kind == ControlKind::ComboBox)
        takeChoices(field, control);
    return field;
}

const char* instructionOf(FormFieldType type) {
    switch (type) {
    case FormFieldType::Text:
        return " FORMTEXT ";
    case FormFieldType::CheckBox:
        return " FORMCHECKBOX ";
    case FormFieldType::DropDown:
        return " FORMDROPDOWN ";
    }
    return " FORMTEXT ";
}

} // namespace orvane::write
