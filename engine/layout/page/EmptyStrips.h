#pragma once

#include "layout/page/GutterPieces.h"

#include <cstddef>

namespace orvane::layout {

/// The empty upright rectangles between pieces, each as wide and as high as it gets. At least `narrowest` points wide;
/// no more than `limit` are followed at once. Requires: pieces from top to bottom.
std::vector<Rect> findEmptyStrips(std::span<const GutterPiece> pieces, const Rect& area, double narrowest,
                                  std::size_t limit);

} // namespace orvane::layout
