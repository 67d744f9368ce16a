#include "pictures/PictureWriter.h"

#include "base/PngFile.h"
#include "pictures/BmpFile.h"
#include "pictures/ConvertedRows.h"
#include "pictures/JpegFile.h"
#include "pictures/NetpbmFile.h"
#include "pictures/PcxFile.h"
#include "pictures/PsdFile.h"
#include "pictures/TiffFile.h"

#include <limits>

#include <fmt/format.h>

namespace orvane::pictures {
namespace {

struct FormatFacts {
    const char* extension;
    pdf::PictureColors colors;
    std::int64_t maxSide;
    std::int64_t maxBytes; ///< of pixels, at four bytes each
};

constexpr std::int64_t kUnlimited = std::numeric_limits<std::int64_t>::max();

FormatFacts factsOf(ImageFileFormat format) {
    using pdf::PictureColors;
    switch (format) {
    case ImageFileFormat::Bmp:
        return {"bmp", PictureColors::Screen, kUnlimited, kMaxBmpBytes};
    case ImageFileFormat::Jpg:
        return {"jpg", PictureColors::Own, kMaxJpegSide, kUnlimited};
    case ImageFileFormat::Pbm:
        return {"pbm", PictureColors::Screen, kUnlimited, kUnlimited};
    case ImageFileFormat::Pcx:
        return {"pcx", PictureColors::Screen, kMaxPcxSide, kUnlimited};
    case ImageFileFormat::Pnm:
        return {"pnm", PictureColors::DeepScreen, kUnlimited, kUnlimited};
    case ImageFileFormat::Ppm:
        return {"ppm", PictureColors::DeepScreen, kUnlimited, kUnlimited};
    case ImageFileFormat::Psd:
        return {"psd", PictureColors::Own, kMaxPsdSide, kMaxPsdBytes};
    case ImageFileFormat::Tiff:
        return {"tif", PictureColors::Own, kUnlimited, kMaxTiffBytes};
    case ImageFileFormat::Png:
    case ImageFileFormat::Original:
        break;
    }
    return {"png", PictureColors::Own, kUnlimited, kUnlimited};
}

PixelKind withAlpha(const PixelFormat& picture) {
    return isGray(picture) ? PixelKind::GrayAlpha : PixelKind::RgbAlpha;
}

PixelKind opaque(const PixelFormat& picture) {
    return isGray(picture) ? PixelKind::Gray : PixelKind::Rgb;
}

bool isDeep(PixelKind kind) {
    return kind == PixelKind::Gray16 || kind == PixelKind::Rgb16;
}

PixelKind kindForBmp(const PixelFormat& picture) {
    if (hasAlpha(picture))
        return PixelKind::RgbAlpha;
    return isDeep(picture.kind) ? opaque(picture) : picture.kind;
}

PixelKind kindForPcx(const PixelFormat& picture) {
    return hasAlpha(picture) || isDeep(picture.kind) ? opaque(picture) : picture.kind;
}

PixelKind kindForPnm(const PixelFormat& picture) {
    if (picture.kind == PixelKind::Stencil && isGray(picture))
        return picture.stencilColor == kBlack || picture.stencilColor == kWhite ? PixelKind::Bilevel : PixelKind::Gray;
    return picture.kind == PixelKind::Palette ? PixelKind::Rgb : kindForPcx(picture);
}

PixelKind kindForPsd(const PixelFormat& picture) {
    if (hasAlpha(picture))
        return withAlpha(picture);
    return isDeep(picture.kind) ? picture.kind : opaque(picture);
}

/// The kind of pixels in which a format holds a picture.
PixelKind kindFor(ImageFileFormat format, const PixelFormat& picture) {
    switch (format) {
    case ImageFileFormat::Bmp:
        return kindForBmp(picture);
    case ImageFileFormat::Jpg:
        return opaque(picture);
    case ImageFileFormat::Pbm:
        return PixelKind::Bilevel;
    case ImageFileFormat::Pcx:
        return kindForPcx(picture);
    case ImageFileFormat::Pnm:
        return isDeep(picture.kind) ? picture.kind : kindForPnm(picture);
    case ImageFileFormat::Ppm:
        return picture.kind == PixelKind::Rgb16 ? PixelKind::Rgb16 : PixelKind::Rgb;
    case ImageFileFormat::Psd:
        return kindForPsd(picture);
    case ImageFileFormat::Tiff:
        return picture.kind == PixelKind::Stencil ? withAlpha(picture) : picture.kind;
    case ImageFileFormat::Png:
    case ImageFileFormat::Original:
        break;
    }
    return picture.kind;
}

void writePng(PictureRows& rows, const Resolution& resolution, OutputFile& file) {
    const PictureData png = encodePng(rows, {resolution.x, resolution.y, rows.format().colorProfile});
    file.write(reinterpret_cast<const std::uint8_t*>(png.bytes.data()), png.bytes.size());
}

void encode(PictureRows& rows, ImageFileFormat format, const Resolution& resolution, OutputFile& file) {
    switch (format) {
    case ImageFileFormat::Bmp:
        return writeBmp(rows, resolution, file);
    case ImageFileFormat::Jpg:
        return writeJpeg(rows, resolution, file);
    case ImageFileFormat::Pbm:
    case ImageFileFormat::Pnm:
    case ImageFileFormat::Ppm:
        return writeNetpbm(rows, file);
    case ImageFileFormat::Pcx:
        return writePcx(rows, resolution, file);
    case ImageFileFormat::Psd:
        return writePsd(rows, resolution, file);
    case ImageFileFormat::Tiff:
        return writeTiff(rows, resolution, file);
    case ImageFileFormat::Png:
    case ImageFileFormat::Original:
        break;
    }
    writePng(rows, resolution, file);
}

} // namespace

pdf::PictureColors colorsFor(ImageFileFormat format) {
    return factsOf(format).colors;
}

std::string extensionOf(ImageFileFormat format) {
    return factsOf(format).extension;
}

std::string findLimit(ImageFileFormat format, const PixelFormat& picture) {
    const FormatFacts facts = factsOf(format);
    if (picture.width > facts.maxSide || picture.height > facts.maxSide)
        return fmt::format("a picture of {} by {} pixels is too large for {} files, which hold {} by {}", picture.width,
                           picture.height, facts.extension, facts.maxSide, facts.maxSide);
    if (std::int64_t{4} * picture.width * picture.height > facts.maxBytes)
        return fmt::format("a picture of {} by {} pixels is too large for {} files", picture.width, picture.height,
                           facts.extension);
    return {};
}

DataEnd writePicture(std::unique_ptr<PictureRows> rows, ImageFileFormat format, const Resolution& resolution,
                     OutputFile& file) {
    const PixelKind kind = kindFor(format, rows->format());
    const auto converted = convertRows(std::move(rows), kind);
    encode(*converted, format, resolution, file);
    return converted->isCutShort() ? DataEnd::CutShort : DataEnd::Whole;
}

} // namespace orvane::pictures
