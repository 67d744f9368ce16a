#pragma once

#include "base/Geometry.h"

#include <cstdint>
#include <vector>

namespace orvane::pdf {

/// What the soft mask of the graphics state leaves of a picture that is painted under it. Source: ISO
/// 32000-1, 11.6.5.1.
class StateMask {
public:
    /// A painted part of the page, 0 where nothing shines through; what lies outside of it does not either.
    struct Coverage {
        int left = 0; ///< of the part, in its own pixels
        int top = 0;
        int width = 0;
        int height = 0;
        std::vector<std::uint8_t> opacity; ///< row by row
    };

    /// `matrix` goes from the picture's unit square, origin at its top left corner, to the coverage's pixels.
    StateMask(Coverage coverage, const Matrix& matrix)
        : m_coverage(std::move(coverage))
        , m_matrix(matrix) {}

    /// Opacity of the pixels of row `y` of `height`; `alpha` has one value a pixel of the row.
    void read(int y, int height, std::vector<std::uint8_t>& alpha) const;

private:
    std::uint8_t at(Point place) const;

    Coverage m_coverage;
    Matrix m_matrix;
};

} // namespace orvane::pdf
