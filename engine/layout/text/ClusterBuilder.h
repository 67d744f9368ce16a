#pragma once

#include "layout/text/FrameFinder.h"

namespace orvane::layout {

/// Puts the selected glyphs into clusters, in paint order: combining marks and accents join their letters, presentation
/// forms and ligatures become base letters, marks with an actual text say that text.
std::vector<Cluster> buildClusters(const pdf::PageContent& page, const GlyphSelection& selection,
                                   const FrameSelection& frames, const TextParameters& parameters,
                                   Diagnostics& diagnostics);

} // namespace orvane::layout
