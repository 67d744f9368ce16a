#include "base/PictureRows.h"

#include <algorithm>

namespace orvane {

std::size_t bytesPerPixel(PixelKind kind) {
    switch (kind) {
    case PixelKind::Stencil:
    case PixelKind::Bilevel:
    case PixelKind::Palette:
    case PixelKind::Gray:
        return 1;
    case PixelKind::Gray16:
    case PixelKind::GrayAlpha:
        return 2;
    case PixelKind::Rgb:
        return 3;
    case PixelKind::RgbAlpha:
        return 4;
    case PixelKind::Rgb16:
        break;
    }
    return 6;
}

std::size_t rowBytes(const PixelFormat& format) {
    return bytesPerPixel(format.kind) * static_cast<std::size_t>(format.width);
}

void packBits(const std::uint8_t* values, int count, std::uint8_t* packed) {
    std::fill_n(packed, (static_cast<std::size_t>(count) + 7) / 8, std::uint8_t{0});
    for (int x = 0; x < count; ++x)
        if (values[x] != 0)
            packed[x / 8] |= static_cast<std::uint8_t>(0x80 >> (x % 8));
}

void clearRow(const PixelFormat& format, std::uint8_t* row) {
    std::uint8_t paper = 0xFF;
    if (format.kind == PixelKind::Bilevel)
        paper = 1;
    else if (format.kind == PixelKind::Stencil || format.kind == PixelKind::Palette ||
             format.kind == PixelKind::GrayAlpha || format.kind == PixelKind::RgbAlpha)
        paper = 0;
    std::fill_n(row, rowBytes(format), paper);
}

} // namespace orvane
