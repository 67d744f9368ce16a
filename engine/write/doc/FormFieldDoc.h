#pragma once

#include "write/doc/DocState.h"

#include <functional>

namespace orvane::write::doc {

/// Writes a form field around what `writeContent` writes: a field whose instruction ends with a character that stands
/// for the field's name, kind and state in the data stream. Source: [MS-DOC] 2.9.78 (FFData), 2.9.166
/// (NilPICFAndBinData).
void writeFormField(Story& story, const document::ContentControl& control, const std::string& look,
                    const std::function<void()>& writeContent);

} // namespace orvane::write::doc
