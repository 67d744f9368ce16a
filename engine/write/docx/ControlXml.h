#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

#include <functional>

namespace orvane::write::docx {

/// Writes a form field as a content control around what `writeContent` writes; a box that is no field of a form as a
/// field of the older kind, which looks as drawn and is no text.
/// Source: ECMA-376 part 1, 17.5.2; [MS-DOCX] 2.6.1.20 (check boxes); ECMA-376 part 1, 17.16.7 and 17.16.17 (the older
/// kind).
void writeControl(Story& story, const document::ContentControl& control, const document::RunProperties& base,
                  const std::function<void()>& writeContent);

} // namespace orvane::write::docx
