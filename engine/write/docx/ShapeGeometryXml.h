#pragma once

#include "base/XmlWriter.h"
#include "document/Document.h"

namespace orvane::write::docx {

/// Writes where a shape stands and how its outline runs: straight lines and upright rectangles as the word processor's
/// own, so that they can be edited as such, others as a path.
/// Source: ECMA-376 part 1, 20.1.9.8, 20.1.9.18.
void writeShapeGeometry(XmlWriter& xml, const document::Shape& shape);

} // namespace orvane::write::docx
