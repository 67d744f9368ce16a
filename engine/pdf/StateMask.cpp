#include "pdf/StateMask.h"

#include <cmath>

namespace orvane::pdf {

void StateMask::read(int y, int height, std::vector<std::uint8_t>& alpha) const {
    const double v = (y + 0.5) / height;
    for (std::size_t x = 0; x < alpha.size(); ++x)
        alpha[x] = at(m_matrix.apply({(static_cast<double>(x) + 0.5) / static_cast<double>(alpha.size()), v}));
}

std::uint8_t StateMask::at(Point place) const {
    const double x = std::floor(place.x) - m_coverage.left;
    const double y = std::floor(place.y) - m_coverage.top;
    if (!(x >= 0) || !(y >= 0) || x >= m_coverage.width || y >= m_coverage.height)
        return 0;
    return m_coverage.opacity[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_coverage.width) +
                              static_cast<std::size_t>(x)];
}

} // namespace orvane::pdf
