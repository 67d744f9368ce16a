#pragma once

#include "write/rtf/RtfState.h"

namespace orvane::write::rtf {

/// Writes the document's lists, when it has some: each counts on its own.
/// Source: RTF 1.9.1, "List Table".
void writeListTables(RtfState& state, RtfStream& rtf);

} // namespace orvane::write::rtf
