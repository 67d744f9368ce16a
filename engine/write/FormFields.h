#pragma once

#include "document/Document.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// What the form fields of RTF and of the binary format have in common: the same kinds, with the same limits.
/// Source: RTF 1.9.1, "Form Fields"; [MS-DOC] 2.9.78 (FFData).
namespace orvane::write {

enum class FormFieldType { Text = 0, CheckBox = 1, DropDown = 2 };

/// What stands in an empty text field, so that it can be seen and clicked.
inline constexpr const char* kEmptyField = "\u2002\u2002\u2002\u2002\u2002";

/// A form field as both formats hold it; texts are cut to the lengths that they allow.
struct FormField {
    FormFieldType type = FormFieldType::Text;
    bool isDate = false; ///< of a text field: it holds a date
    std::string name;
    std::string help;
    bool isChecked = false;
    std::vector<std::string> choices;
    std::size_t shownChoice = 0; ///< index into choices
};

/// The control as a form field. A choice that is not among the choices makes it a text field; so does a date.
FormField formFieldOf(const document::ContentControl& control);

/// The instruction of the field that it stands in.
const char* instructionOf(FormFieldType type);

} // namespace orvane::write
