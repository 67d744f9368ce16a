#pragma once

#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes the styles, the lists and all that follows them: what holds for the whole file, and its sections.
/// Source: RTF 1.9.1, "Document Area".
void writeBody(RtfState& state, RtfStream& rtf);

} // namespace orvane::write::rtf
