#pragma once

#include "base/Diagnostic.h"
#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Finds groups of paths that are drawings: what is neither rule nor ground (curves, slanted lines, odd shapes), with
/// everything that stands close by, and the rules and grounds within, which are marked as used. A group that lies under
/// running text is a background. Requires: `isRuling` tells for each path of the page whether it is nothing but rules
/// and grounds.
std::vector<Figure> findDrawings(const pdf::PageContent& page, const std::vector<bool>& isRuling, PageText& text,
                                 const GraphicsParameters& parameters, Diagnostics& diagnostics);

/// Whether running text lies in `box`, so that what is painted there is a decoration rather than a picture with labels.
bool liesUnderText(const Rect& box, const std::vector<Line>& lines, const GraphicsParameters::Drawings& limits);

} // namespace orvane::layout
