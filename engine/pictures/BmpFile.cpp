#include "pictures/BmpFile.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::pictures {
namespace {

constexpr std::uint32_t kFileHeader = 14;
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint32_t kInfoHeaderV4 = 108;
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kSrgb = 0x73524742;

int bitsPerPixel(PixelKind kind) {
    switch (kind) {
    case PixelKind::Bilevel:
        return 1;
    case PixelKind::RgbAlpha:
        return 32;
    case PixelKind::Rgb:
        return 24;
    default:
        return 8;
    }
}

/// Rows fill words of four bytes.
std::int64_t storedRowBytes(const PixelFormat& format) {
    return (std::int64_t{format.width} * bitsPerPixel(format.kind) + 31) / 32 * 4;
}

std::vector<Color> paletteOf(const PixelFormat& format) {
    if (format.kind == PixelKind::Bilevel)
        return {kBlack, kWhite};
    std::vector<Color> palette = format.palette;
    for (int level = 0; format.kind == PixelKind::Gray && level < 256; ++level) {
        const auto channel = static_cast<std::uint8_t>(level);
        palette.push_back({channel, channel, channel});
    }
    return palette;
}

std::uint64_t dotsPerMetre(double dotsPerInch) {
    return static_cast<std::uint64_t>(std::lround(dotsPerInch / 0.0254));
}

void putHeaders(const PixelFormat& format, const Resolution& resolution, std::size_t paletteSize, std::string& bytes) {
    const bool isTransparent = format.kind == PixelKind::RgbAlpha;
    const std::uint32_t infoHeader = isTransparent ? kInfoHeaderV4 : kInfoHeader;
    const std::uint64_t start = kFileHeader + infoHeader + 4 * paletteSize;
    const auto pixels = static_cast<std::uint64_t>(storedRowBytes(format) * format.height);
    bytes += "BM";
    putLittleEndian<4>(bytes, start + pixels);
    putLittleEndian<4>(bytes, 0);
    putLittleEndian<4>(bytes, start);
    putLittleEndian<4>(bytes, infoHeader);
    putLittleEndian<4>(bytes, static_cast<std::uint64_t>(format.width));
    putLittleEndian<4>(bytes, static_cast<std::uint64_t>(format.height));
    putLittleEndian<2>(bytes, 1); // planes
    putLittleEndian<2>(bytes, static_cast<std::uint64_t>(bitsPerPixel(format.kind)));
    putLittleEndian<4>(bytes, isTransparent ? kBitFields : 0);
    putLittleEndian<4>(bytes, pixels);
    putLittleEndian<4>(bytes, dotsPerMetre(resolution.x));
    putLittleEndian<4>(bytes, dotsPerMetre(resolution.y));
    putLittleEndian<4>(bytes, paletteSize);
    putLittleEndian<4>(bytes, 0); // all colours matter
    if (!isTransparent)
        return;
    for (const std::uint32_t channel : {0x00FF0000u, 0x0000FF00u, 0x000000FFu, 0xFF000000u})
        putLittleEndian<4>(bytes, channel);
    putLittleEndian<4>(bytes, kSrgb);
    bytes.append(48, '\0'); // end points and gamma, which sRGB has by itself
}

/// A row in the order of the file: blue, green, red, opacity.
void store(const PixelFormat& format, const std::vector<std::uint8_t>& row, std::uint8_t* stored) {
    const std::size_t step = bytesPerPixel(format.kind);
    if (format.kind == PixelKind::Bilevel) {
        packBits(row.data(), format.width, stored);
    } else if (step == 1) {
        std::copy(row.begin(), row.end(), stored);
    } else {
        for (std::size_t at = 0; at < row.size(); at += step) {
            stored[at] = row[at + 2];
            stored[at + 1] = row[at + 1];
            stored[at + 2] = row[at];
            if (step == 4)
                stored[at + 3] = row[at + 3];
        }
    }
}

} // namespace

void writeBmp(PictureRows& rows, const Resolution& resolution, OutputFile& file) {
    const PixelFormat& format = rows.format();
    const std::vector<Color> palette = paletteOf(format);
    std::string headers;
    putHeaders(format, resolution, palette.size(), headers);
    for (const Color& color : palette)
        for (const std::uint8_t value : {color.blue, color.green, color.red, std::uint8_t{0}})
            headers += static_cast<char>(value);
    file.write(headers);

    // The file's first row is the lowest, so several rows are gathered and put where they belong, the last of them
    // first.
    const auto start = static_cast<std::int64_t>(headers.size());
    const auto stride = static_cast<std::size_t>(storedRowBytes(format));
    const int gathered = std::clamp(static_cast<int>((std::size_t{1} << 22) / stride), 1, format.height);
    std::vector<std::uint8_t> row(rowBytes(format));
    std::vector<std::uint8_t> block(stride * static_cast<std::size_t>(gathered));
    for (int y = 0; y < format.height;) {
        const int count = std::min(gathered, format.height - y);
        for (int i = count - 1; i >= 0; --i) {
            rows.read(row.data());
            store(format, row, &block[static_cast<std::size_t>(i) * stride]);
        }
        y += count;
        file.seek(start + static_cast<std::int64_t>(stride) * (format.height - y));
        file.write(block.data(), static_cast<std::size_t>(count) * stride);
    }
}

} // namespace orvane::pictures
