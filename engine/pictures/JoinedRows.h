#pragma once

#include "base/PictureRows.h"

#include <memory>
#include <vector>

namespace orvane::pictures {

/// A piece of a picture with its place in the whole.
struct PlacedRows {
    std::unique_ptr<PictureRows> rows;
    int x = 0;
    int y = 0;
    int height = 0;
};

/// Reads pieces as the one picture that they make up. Where their kinds of pixels or palettes differ, all come in one
/// that holds all. Requires: at least one piece; they tile the size without gaps in bands of equal height, row by row.
std::unique_ptr<PictureRows> joinRows(std::vector<PlacedRows> pieces, int width, int height);

} // namespace orvane::pictures
