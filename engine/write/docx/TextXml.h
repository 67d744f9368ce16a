#pragma once

#include "base/XmlWriter.h"

namespace orvane::write::docx {

/// Writes a text as the children of a run: w:t for characters, elements of their own for tabulators, line ends, soft
/// and unbreakable hyphens.
void writeRunText(XmlWriter& xml, std::string_view text);

} // namespace orvane::write::docx
