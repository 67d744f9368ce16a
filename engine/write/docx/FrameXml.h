#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

namespace orvane::write::docx {

/// Writes a run with a box of text that floats. Its text stands in the file once.
/// Source: [MS-DOCX] 2.2.4 (shapes with text).
void writeFrame(Story& story, const document::Frame& frame);

} // namespace orvane::write::docx
