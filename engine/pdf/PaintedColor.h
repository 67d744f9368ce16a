#pragma once

#include "pdf/PageContent.h"

namespace orvane::pdf {

/// One colour for all that the paths and pictures from the given ones on paint within `area` of `page`, each weighted
/// by its box; what they leave free has the colour of `ground`. Good enough for hatchings, textures and masks, which
/// fill their area evenly.
struct PaintedRange {
    std::size_t firstPath = 0;
    std::size_t firstPicture = 0;
};
Color meanPaintedColor(const PageContent& page, const PaintedRange& range, const Rect& area, Color ground);

} // namespace orvane::pdf
