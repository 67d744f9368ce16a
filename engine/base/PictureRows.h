#pragma once

#include "base/Color.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane {

/// What the bytes of a row of pixels mean.
enum class PixelKind : std::uint8_t {
    Stencil, ///< one byte a pixel: 1 is painted, in PixelFormat::stencilColor
    Bilevel, ///< one byte a pixel: 0 is black, 1 is white
    Palette, ///< one byte a pixel, an index into PixelFormat::palette
    Gray,
    Gray16, ///< the upper byte first, as in Rgb16
    GrayAlpha,
    Rgb,
    Rgb16,
    RgbAlpha,
};

struct PixelFormat {
    int width = 0;
    int height = 0;
    PixelKind kind = PixelKind::Rgb;
    Color stencilColor;         ///< of PixelKind::Stencil
    std::vector<Color> palette; ///< of PixelKind::Palette
    std::string colorProfile;   ///< ICC profile of the colours; empty for sRGB

    bool operator==(const PixelFormat&) const = default;
};

std::size_t bytesPerPixel(PixelKind kind);
std::size_t rowBytes(const PixelFormat& format);

/// A picture that is read row by row, top to bottom, so that its height costs no memory.
class PictureRows {
public:
    explicit PictureRows(PixelFormat format)
        : m_format(std::move(format)) {}
    virtual ~PictureRows() = default;
    PictureRows(const PictureRows&) = delete;
    PictureRows& operator=(const PictureRows&) = delete;

    const PixelFormat& format() const { return m_format; }

    /// Reads the next row. Below the end of the data rows are empty paper: white, transparent, not painted.
    /// Requires: `row` holds rowBytes(); called no more often than there are rows.
    virtual void read(std::uint8_t* row) = 0;

    /// The data ended before a row that was read.
    virtual bool isCutShort() const = 0;

private:
    PixelFormat m_format;
};

/// Packs bytes of 0 and 1 into bits, the first in the highest; what is left of the last byte is 0.
void packBits(const std::uint8_t* values, int count, std::uint8_t* packed);

/// Makes a row empty paper.
void clearRow(const PixelFormat& format, std::uint8_t* row);

} // namespace orvane
