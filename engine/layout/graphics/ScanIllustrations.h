#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Adds the illustrations of a scanned page whose text was recognised as figures to be painted: ink, given as squares
/// of `inkSquare` points, that lies apart from all words. Requires: isReadScan().
void addIllustrations(PageText& page, const std::vector<Rect>& ink,
                      const GraphicsParameters::Illustrations& parameters);

} // namespace orvane::layout
