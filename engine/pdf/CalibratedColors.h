#pragma once

#include "base/Color.h"

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

class GfxImageColorMap;

namespace orvane::pdf {

/// The colours of calibrated greys and of calibrated red, green and blue as sRGB, in which the space's white is white
/// and its greys have no tint. Source: ISO 32000-1, 8.6.5.2 and 8.6.5.3; sRGB as in IEC 61966-2-1.
class CalibratedColors {
public:
    /// Of a picture in such a space, or with a palette of such a space; nothing for others.
    static std::optional<CalibratedColors> of(GfxImageColorMap& colors);

    /// The colour of one value of a picture with one component.
    Color at(std::uint8_t sample) const;
    /// A row of pixels of three components, as red, green, blue.
    void readRgb(const std::uint8_t* samples, std::uint8_t* row, int width) const;

private:
    using Vector = std::array<double, 3>;

    explicit CalibratedColors(GfxImageColorMap& colors);
    /// The light of a colour, its components 0 to 1.
    Vector linear(const Vector& color) const;
    void describe(GfxImageColorMap& colors);
    void put(const Vector& light, std::uint8_t* rgb) const;

    bool m_isGray = false;
    Vector m_gamma{1, 1, 1};
    std::array<Vector, 3> m_toSrgb{};                 ///< rows of the matrix from the space's light to that of sRGB
    std::vector<Color> m_table;                       ///< of pictures with one component
    std::array<std::array<double, 256>, 3> m_light{}; ///< of each value, for pictures with three components
    std::vector<std::uint8_t> m_level;                ///< of light, in kLightSteps
};

} // namespace orvane::pdf
