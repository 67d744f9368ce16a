#pragma once

#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The rule as shapes that look as it was painted, in page space: two for a double one.
std::vector<document::Shape> shapesOf(const Rule& rule);

/// The ground as a filled shape, in page space.
document::Shape shapeOf(const Ground& ground);

/// A drawing of shapes that stand in page space, of which `box` is the part that it takes.
document::Drawing drawingOf(std::vector<document::Shape> shapes, const Rect& box);

} // namespace orvane::layout
