#pragma once

#include "pdf/FontProgram.h"

#include <vector>

namespace orvane::pdf {

/// A straight piece of a glyph's outline; curves are cut into several. Units: em, y upwards.
struct OutlinePiece {
    double x0, y0, x1, y1;
};

/// The outline of a glyph, contour after contour; empty for glyphs without one.
std::vector<OutlinePiece> outlineOf(FT_Face face, FT_UInt glyph);

/// Whether an outline is a disk of a bullet's size.
bool isBullet(const std::vector<OutlinePiece>& outline);

} // namespace orvane::pdf
