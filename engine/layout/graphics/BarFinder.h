#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Boxes around the bars of charts: grounds without text that stand on (or hang from) one line side by side, alike in
/// breadth and of several lengths; lying bars likewise.
std::vector<Rect> findBars(const PageText& text, const GraphicsParameters::Bars& limits);

} // namespace orvane::layout
