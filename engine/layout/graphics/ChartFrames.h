#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The boxes of four rules that have numbers along a side, as charts are framed. Curves and points within such a box
/// are one drawing, however far apart they lie.
std::vector<Rect> findChartFrames(const PageText& text, const GraphicsParameters::Charts& limits);

} // namespace orvane::layout
