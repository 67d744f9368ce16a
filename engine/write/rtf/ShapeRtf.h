#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes a drawing that floats: one shape, or a group of them.
/// Source: RTF 1.9.1, "Shapes", "Shape groups".
void writeFloatingShapes(Story& story, const document::Drawing& drawing, const document::Placement& placement);

} // namespace orvane::write::rtf
