#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes a text box.
/// Source: RTF 1.9.1, "Shapes" (\shptxt).
void writeFrame(Story& story, const document::Frame& frame);

} // namespace orvane::write::rtf
