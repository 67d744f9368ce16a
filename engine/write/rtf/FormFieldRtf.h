#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

#include <functional>

namespace orvane::write::rtf {

/// Writes a form field around what `writeContent` writes. A choice that is not among the choices makes it a text field;
/// dates are text fields that hold a date.
/// Source: RTF 1.9.1, "Form Fields".
void writeFormField(Story& story, const document::ContentControl& control, const std::function<void()>& writeContent);

} // namespace orvane::write::rtf
