#pragma once

#include "FaxCoder.h"

#include <string>

namespace orvane::pictures {

/// The segments of a JBIG2 picture as a PDF holds them.
struct Jbig2Segments {
    std::string globals; ///< those that several pictures share
    std::string own;
};

/// A picture of up to 16 pixels a row, whole in one region.
Jbig2Segments codeJbig2(const Raster& rows);

/// A picture of tiles: `tiles` has a row of digits for each row of tiles, 0 for an empty one and 1 for `tile`. The
/// tiles are shared segments. Requires: no more than 16 tiles a row, each of an equal number of pixels.
Jbig2Segments codeTiledJbig2(const Raster& tile, const Raster& tiles);

} // namespace orvane::pictures
