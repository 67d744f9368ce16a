#include "base/PngFile.h"

namespace orvane {
namespace {

PngPixels pixelsOf(PixelKind kind, std::size_t paletteSize) {
    switch (kind) {
    case PixelKind::Stencil:
        return PngPixels::Palette1;
    case PixelKind::Bilevel:
        return PngPixels::Gray1;
    case PixelKind::Palette:
        return paletteSize == 2 ? PngPixels::Palette1 : PngPixels::Palette8;
    case PixelKind::Gray:
        return PngPixels::Gray8;
    case PixelKind::Gray16:
        return PngPixels::Gray16;
    case PixelKind::GrayAlpha:
        return PngPixels::GrayAlpha8;
    case PixelKind::Rgb:
        return PngPixels::Rgb8;
    case PixelKind::Rgb16:
        return PngPixels::Rgb16;
    case PixelKind::RgbAlpha:
        break;
    }
    return PngPixels::RgbAlpha8;
}

std::vector<PngPaletteEntry> paletteOf(const PixelFormat& format) {
    if (format.kind == PixelKind::Stencil)
        return {{format.stencilColor, 0}, {format.stencilColor, 255}};
    std::vector<PngPaletteEntry> palette;
    for (const Color& color : format.palette)
        palette.push_back({color, 255});
    return palette;
}

bool isPacked(PngPixels pixels) {
    return pixels == PngPixels::Gray1 || pixels == PngPixels::Palette1;
}

} // namespace

PictureData encodePng(PictureRows& rows, const PngExtras& extras) {
    const PixelFormat& format = rows.format();
    const PngPixels pixels = pixelsOf(format.kind, format.palette.size());
    PngEncoder png(format.width, format.height, pixels, paletteOf(format), extras);
    std::vector<std::uint8_t> row(rowBytes(format));
    std::vector<std::uint8_t> packed(pngRowBytes(pixels, format.width));
    for (int y = 0; y < format.height; ++y) {
        rows.read(row.data());
        if (isPacked(pixels)) {
            packBits(row.data(), format.width, packed.data());
            png.writeRow(packed.data());
        } else {
            png.writeRow(row.data());
        }
    }
    return png.finish();
}

} // namespace orvane
