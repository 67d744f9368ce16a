#pragma once

#include "base/Color.h"
#include "base/PictureData.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

/// How the pixels of a row are laid out.
enum class PngPixels : std::uint8_t {
    Gray1, ///< eight pixels a byte, the first in the highest bit; 1 is white
    Gray8,
    Palette1, ///< eight pixels a byte, the first in the highest bit, indices into a palette of two
    Palette8, ///< one byte a pixel, an index into the palette
    Rgb8,
    Gray16, ///< the upper byte first, as in Rgb16
    Rgb16,
    GrayAlpha8,
    RgbAlpha8,
};

struct PngPaletteEntry {
    Color color;
    std::uint8_t alpha = 255;
};

/// What a PNG may say beside its pixels.
struct PngExtras {
    double dotsPerInchX = 0; ///< 0: not said
    double dotsPerInchY = 0;
    std::string colorProfile; ///< ICC profile of the pixels' colours; empty for none
};

/// Bytes of one row of `width` pixels.
std::size_t pngRowBytes(PngPixels pixels, int width);

/// Writes a PNG row by row, so that a picture of any height costs the memory of its packed form only.
class PngEncoder {
public:
    /// `palette` is for PngPixels::Palette1 and Palette8.
    /// Requires: width, height > 0.
    PngEncoder(int width, int height, PngPixels pixels, const std::vector<PngPaletteEntry>& palette = {},
               const PngExtras& extras = {});
    ~PngEncoder();
    PngEncoder(const PngEncoder&) = delete;
    PngEncoder& operator=(const PngEncoder&) = delete;

    /// Requires: `row` holds pngRowBytes(); called once a row, top to bottom.
    /// Errors: std::bad_alloc.
    void writeRow(const std::uint8_t* row);

    /// Ends the file. Requires: all rows have been written.
    PictureData finish();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace orvane
