#pragma once

#include "pdf/FontProgram.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orvane::pdf {

/// One glyph as a TrueType file holds it. Units: of the file's em.
struct TrueTypeGlyph {
    std::string data; ///< its entry in the table "glyf"; empty for a glyph without ink
    int advance = 0;
    int left = 0; ///< of its ink
    int bottom = 0;
    int right = 0;
    int top = 0;
    unsigned points = 0;
    unsigned contours = 0;
};

/// Draws a glyph of any kind of program anew for a file with `unitsPerEm`: cubic curves become quadratic ones, composed
/// glyphs simple ones. The advance is left to the caller. Unset for glyphs that cannot be loaded, or are too large.
std::optional<TrueTypeGlyph> trueTypeGlyph(const FontProgram& program, std::uint32_t glyph, int unitsPerEm);

} // namespace orvane::pdf
