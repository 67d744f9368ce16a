#pragma once

#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// A filled rectangle without an outline, in page space.
document::Shape filledShape(const Rect& box, Color color, double opacity);

/// The rule as shapes that look as it was painted, in page space: two for a double one.
std::vector<document::Shape> shapesOf(const Rule& rule);

/// The rule as a drawing of its own.
Figure figureOf(const Rule& rule);

} // namespace orvane::layout
