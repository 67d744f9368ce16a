#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

#include <optional>

namespace orvane::write::docx {

inline constexpr std::string_view kShapeNamespace = "http://schemas.microsoft.com/office/word/2010/wordprocessingShape";

/// Writes a run with a drawing that floats: one shape, or a group of them.
/// Source: [MS-DOCX] 2.2.4 (shapes and groups in documents); ECMA-376 part 1, 20.1.9 (outlines).
void writeFloatingShapes(Story& story, const document::Drawing& drawing, const document::Placement& placement);

/// Writes what a shape is filled with. `opacity` is from 0 to 1.
void writeFill(XmlWriter& xml, const std::optional<Color>& fill, double opacity);
/// Writes a:ln: how a shape's outline is drawn.
void writeOutlineLook(XmlWriter& xml, const std::optional<document::ShapeLine>& line, double opacity);

} // namespace orvane::write::docx
