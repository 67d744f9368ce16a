#pragma once

#include "base/Color.h"
#include "base/PictureData.h"

#include <vector>

namespace orvane::worker {

/// A box that is painted evenly. Units: pixels.
struct PaintedBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    Color color;
    double opacity = 1;
};

/// Paints boxes one over the other, the first lowest, on nothing; their edges are as faint as they cover their pixels.
/// What others hide is left out, so that thousands of boxes over each other take the time of those that are seen.
PictureData paintBoxes(int width, int height, const std::vector<PaintedBox>& boxes);

} // namespace orvane::worker
