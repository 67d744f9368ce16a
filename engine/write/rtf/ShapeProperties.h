#pragma once

#include "document/Document.h"
#include "write/rtf/RtfState.h"

#include <optional>

namespace orvane::write::rtf {

/// How large a floating object is.
struct ShapeExtent {
    Emu width;
    Emu height;
    double rotation = 0; ///< degrees clockwise
};

/// Writes one property of a shape.
/// Source: RTF 1.9.1, "Drawing Objects", "Drawing Object Properties"; [MS-ODRAW] 2.3 (meaning).
void writeShapeProperty(RtfStream& rtf, std::string_view name, std::int64_t value);
void writeShapeProperty(RtfStream& rtf, std::string_view name, std::string_view value);

/// Writes where a floating object stands and how text runs round it.
void writePlacement(Story& story, const document::Placement& placement, const ShapeExtent& extent);

/// Writes what a shape is filled with and how its outline is drawn. `opacity` is from 0 to 1.
void writeFill(RtfStream& rtf, const std::optional<Color>& fill, double opacity);
/// Requires: isStoredAsGradient().
void writeGradient(RtfStream& rtf, const document::Gradient& gradient, double opacity);
void writeOutlineLook(RtfStream& rtf, const std::optional<document::ShapeLine>& line, double opacity);

/// Degrees clockwise as shapes take them: with 16 binary places, from 0 to below a full turn.
std::int64_t shapeAngle(double degrees);

/// A length as shapes take it: within 32 bits.
std::int64_t shapeLength(Emu length);

} // namespace orvane::write::rtf
