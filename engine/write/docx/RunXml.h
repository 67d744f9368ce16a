#pragma once

#include "base/XmlWriter.h"
#include "document/Document.h"

namespace orvane::write::docx {

/// Which characters properties are for. Complex scripts have a size, weight and slant of their own.
enum class ScriptUse { Simple, Complex };

/// Writes w:rPr with what differs from `base`, and nothing when nothing does. Without a base everything is written:
/// what stands above it is not known.
/// Source: ECMA-376 part 1, 17.3.2.28 (order and meaning of the children).
void writeRunProperties(XmlWriter& xml, const document::RunProperties& properties, const document::RunProperties* base,
                        ScriptUse scripts);

} // namespace orvane::write::docx
