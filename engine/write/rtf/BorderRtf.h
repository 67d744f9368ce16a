#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes how a border looks, after the word that tells which side it is.
/// Source: RTF 1.9.1, "Paragraph Borders".
void writeBorder(RtfState& state, RtfStream& rtf, std::string_view side, const document::Border& border);

} // namespace orvane::write::rtf
