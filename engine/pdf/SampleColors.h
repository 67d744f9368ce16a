#pragma once

#include "base/Color.h"
#include "base/PictureRows.h"
#include "pdf/CalibratedColors.h"
#include "pdf/PictureSource.h"

#include <cstdint>
#include <optional>
#include <vector>

class GfxImageColorMap;

namespace orvane::pdf {

/// The colours of all values of a picture with one component of up to 8 bits.
std::vector<Color> colorTable(GfxImageColorMap& colors);

/// Whether every component's Decode array is the one that says nothing.
bool hasDefaultDecode(GfxImageColorMap& colors);

/// Turns rows of samples, one byte each, into rows of colours.
class SampleColors {
public:
    /// Requires: source.colors is there; it outlives this.
    explicit SampleColors(const PictureSource& source);

    /// The plainest kind that holds the picture's colours: Bilevel, Palette, Gray or Rgb.
    PixelKind kind() const { return m_kind; }
    /// True when all colours are greys.
    bool isGray() const { return m_kind == PixelKind::Bilevel || m_kind == PixelKind::Gray; }
    const std::vector<Color>& table() const { return m_table; }

    /// A row in kind().
    void read(const std::uint8_t* samples, std::uint8_t* row, int width) const;
    /// A row as Gray or, for colours, as Rgb.
    void readFull(const std::uint8_t* samples, std::uint8_t* row, int width) const;

private:
    GfxImageColorMap& m_colors;
    PixelKind m_kind = PixelKind::Rgb;
    bool m_isOwnProfile; ///< the samples stay as they are, since their profile goes with them
    std::vector<Color> m_table;
    std::optional<CalibratedColors> m_calibrated; ///< of three components
};

} // namespace orvane::pdf
