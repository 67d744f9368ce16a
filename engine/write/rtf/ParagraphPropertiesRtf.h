#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes the words that tell how a paragraph stands after \pard: what differs from the format's defaults, and what
/// differs from `inherited`, which readers may take for set by the style or the list.
/// Source: RTF 1.9.1, "Paragraph Formatting Properties".
void writeParagraphProperties(RtfState& state, RtfStream& rtf, const document::ParagraphProperties& properties,
                              const document::ParagraphProperties& inherited);

} // namespace orvane::write::rtf
