#pragma once

#include "write/Fields.h"
#include "write/rtf/RtfStream.h"

namespace orvane::write::rtf {

/// Writes what stands before a field's result.
/// Source: RTF 1.9.1, "Fields".
void startField(RtfStream& rtf, const std::string& instruction);
void endField(RtfStream& rtf);

} // namespace orvane::write::rtf
