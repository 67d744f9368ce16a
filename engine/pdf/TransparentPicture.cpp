#include "pdf/TransparentPicture.h"

#include "base/PngEncoder.h"

#include <algorithm>
#include <vector>

#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

/// Colour and opacity of a pixel from how it looks on black and on white: what shines through is the difference.
void separate(const std::uint8_t* onBlack, const std::uint8_t* onWhite, std::uint8_t* rgba) {
    int shining = 0;
    for (int c = 0; c < 3; ++c)
        shining = std::max(shining, onWhite[c] - onBlack[c]);
    const int opacity = 255 - shining;
    for (int c = 0; c < 3; ++c)
        rgba[c] =
            opacity == 0 ? 255 : static_cast<std::uint8_t>(std::min(255, (onBlack[c] * 255 + opacity / 2) / opacity));
    rgba[3] = static_cast<std::uint8_t>(opacity);
}

const std::uint8_t* rowOf(SplashBitmap& bitmap, int y) {
    return bitmap.getDataPtr() + static_cast<std::ptrdiff_t>(y) * bitmap.getRowSize();
}

} // namespace

PictureData transparentPicture(SplashBitmap& onBlack, SplashBitmap& onWhite) {
    PngEncoder png(onBlack.getWidth(), onBlack.getHeight(), PngPixels::RgbAlpha8);
    std::vector<std::uint8_t> row(pngRowBytes(PngPixels::RgbAlpha8, onBlack.getWidth()));
    for (int y = 0; y < onBlack.getHeight(); ++y) {
        for (int x = 0; x < onBlack.getWidth(); ++x)
            separate(rowOf(onBlack, y) + x * 3, rowOf(onWhite, y) + x * 3, &row[static_cast<std::size_t>(x) * 4]);
        png.writeRow(row.data());
    }
    return png.finish();
}

} // namespace orvane::pdf
