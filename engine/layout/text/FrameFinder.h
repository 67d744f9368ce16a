#pragma once

#include "layout/text/GlyphFilter.h"
#include "layout/text/TextDraft.h"

namespace orvane::layout {

/// The directions of writing on a page, and which of them each selected glyph follows.
struct FrameSelection {
    std::vector<TextFrame> frames;
    std::vector<std::uint32_t> frameOfGlyph; ///< parallel to GlyphSelection::glyphs
};

/// Groups glyphs by the direction of their baselines. Directions close to level or plumb are taken as such, with one
/// common skew.
FrameSelection findFrames(const pdf::PageContent& page, const GlyphSelection& selection,
                          const TextParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
