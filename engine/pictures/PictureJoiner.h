#pragma once

#include "pdf/PagePictures.h"

#include <vector>

namespace orvane::pictures {

/// A painted picture, or several that are the strips or tiles of one.
struct PictureGroup {
    struct Piece {
        std::size_t index = 0; ///< of the page's painted pictures
        int x = 0;             ///< its place in the whole, pixels
        int y = 0;
    };
    std::vector<Piece> pieces; ///< row by row, left to right
    int width = 0;             ///< of the whole, pixels
    int height = 0;
    Matrix matrix; ///< of the whole, as PaintedPicture::matrix
};

/// Puts pictures together that many programs cut a large one into: painted one after the other, alike in pixels and
/// coding, of one scale and direction, each edge on the next one's edge, together a rectangle. A picture that the page
/// paints more than once is a pattern, not a piece. All others come back alone; the order is that of painting.
std::vector<PictureGroup> joinPieces(const std::vector<pdf::PaintedPicture>& painted);

} // namespace orvane::pictures
