#pragma once

#include "base/Diagnostic.h"
#include "layout/text/TextParameters.h"
#include "pdf/PageContent.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace orvane::layout {

/// How a glyph came to take part in the text.
enum class GlyphSight : std::uint8_t {
    Seen,
    Recognised,  ///< text behind a scanned picture, where nobody sees it
    ClippedAway, ///< outside the clip path
};

/// A glyph that takes part in the text.
struct SelectedGlyph {
    std::uint32_t index = 0; ///< into pdf::PageContent::glyphs
    GlyphSight sight = GlyphSight::Seen;
    bool isBold = false; ///< made bold by painting: stroked as well as filled, or painted twice with a small offset
    std::optional<Color> edge{}; ///< the colour around it, if that alone is seen: it is filled like the paper
};

/// The glyphs a reader sees, each once, in paint order.
struct GlyphSelection {
    std::vector<SelectedGlyph> glyphs;
    bool isScanned = false; ///< pictures cover the page or its text, of which (nearly) nothing is visible
};

/// Chooses what takes part in the text: visible glyphs, and invisible ones where a picture covers them and nothing
/// visible was written in their place. Programs that recognise text paint it invisibly, or before the picture that
/// then hides it. Glyphs painted again at nearly the same place (shadows, bold by painting) count
/// once.
GlyphSelection filterGlyphs(const pdf::PageContent& page, const TextParameters& parameters, Diagnostics& diagnostics);

/// The glyphs on the page that clip paths cut off, each once: the end of an entry that is longer than its field, say.
/// None of them repeats a glyph of `seen`, for what is painted in strips is there in each.
GlyphSelection clippedGlyphs(const pdf::PageContent& page, const GlyphSelection& seen,
                             const TextParameters& parameters);

} // namespace orvane::layout
