#pragma once

#include "base/XmlWriter.h"
#include "document/Document.h"

#include <optional>

namespace orvane::write::docx {

/// Writes one side's border, a BorderKind::None too: it takes away what a style or the table says.
/// Source: ECMA-376 part 1, 17.3.4.
void writeBorder(XmlWriter& xml, std::string_view element, const document::Border& border);

/// Writes the ground behind characters, a paragraph or a cell; none takes away what a style says.
/// Source: ECMA-376 part 1, 17.3.5.
void writeShading(XmlWriter& xml, const std::optional<Color>& color);

} // namespace orvane::write::docx
