#pragma once

#include "document/Document.h"
#include "write/docx/DocumentState.h"

#include <functional>
#include <string>

namespace orvane::write::docx {

/// What a drawing's frame needs to know of what is in it.
struct DrawingOutline {
    Emu width;
    Emu height;
    double rotation = 0;     ///< degrees clockwise
    std::string kind;        ///< "Picture", for the object's name
    std::string description; ///< alternate text
    std::string link;        ///< the relationship that leads to its target; empty without one
};

/// Which words a reader must know to show a drawing.
enum class DrawingDialect { Picture, Shape, Group };

/// Writes the a:graphic of a drawing; takes the drawing's id.
using GraphicWriter = std::function<void(int id)>;

/// Writes a run with a drawing that stands in the line like a character.
/// Source: ECMA-376 part 1, 20.4.2.8.
void writeInlineDrawing(Story& story, const DrawingOutline& outline, DrawingDialect dialect,
                        const GraphicWriter& graphic);

/// Writes a run with a drawing that floats.
/// Source: ECMA-376 part 1, 20.4.2.3.
void writeFloatingDrawing(Story& story, const DrawingOutline& outline, const document::Placement& placement,
                          DrawingDialect dialect, const GraphicWriter& graphic);

/// A length as drawings take it: never negative, and within 32 bits.
std::int64_t drawingLength(Emu length);
/// Degrees clockwise as drawings take them: 60,000ths from 0 to below a full turn.
std::int64_t drawingAngle(double degrees);

/// Writes a:xfrm.
/// Source: ECMA-376 part 1, 20.1.7.6.
struct Transform {
    Emu x, y, width, height;
    double rotation = 0;
    bool isMirroredHorizontally = false;
    bool isMirroredVertically = false;
};
void writeTransform(XmlWriter& xml, const Transform& transform);

} // namespace orvane::write::docx
