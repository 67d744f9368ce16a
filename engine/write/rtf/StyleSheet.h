#pragma once

#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes the document's styles. Readers differ in whether a style's properties hold where a paragraph does not repeat
/// them: paragraphs do, and styles are complete.
/// Source: RTF 1.9.1, "Style Sheet".
void writeStyleSheet(RtfState& state, RtfStream& rtf);

} // namespace orvane::write::rtf
