#include "pictures/PcxFile.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::pictures {
namespace {

constexpr std::size_t kHeaderLength = 128;
constexpr std::uint8_t kRunMark = 0xC0; ///< the two highest bits; the other six are the run's length
constexpr std::size_t kMaxRun = 63;
constexpr std::uint8_t kPaletteMark = 0x0C;

int planesOf(PixelKind kind) {
    return kind == PixelKind::Rgb ? 3 : 1;
}

std::size_t planeBytes(const PixelFormat& format) {
    const auto width = static_cast<std::size_t>(format.width);
    const std::size_t bytes = format.kind == PixelKind::Bilevel ? (width + 7) / 8 : width;
    return bytes + bytes % 2;
}

std::string header(const PixelFormat& format, const Resolution& resolution) {
    const auto dots = [](double value) { return static_cast<std::uint64_t>(std::clamp(value, 0.0, 65535.0) + 0.5); };
    std::string bytes;
    bytes += '\x0A'; // the format's mark
    bytes += '\x05'; // with palettes
    bytes += '\x01'; // run lengths
    bytes += static_cast<char>(format.kind == PixelKind::Bilevel ? 1 : 8);
    putLittleEndian<4>(bytes, 0); // left, top
    putLittleEndian<2>(bytes, static_cast<std::uint64_t>(format.width - 1));
    putLittleEndian<2>(bytes, static_cast<std::uint64_t>(format.height - 1));
    putLittleEndian<2>(bytes, dots(resolution.x));
    putLittleEndian<2>(bytes, dots(resolution.y));
    bytes += std::string(3, '\0') + std::string(3, '\xFF') + std::string(42, '\0'); // the palette of 16: black, white
    bytes += '\0';
    bytes += static_cast<char>(planesOf(format.kind));
    putLittleEndian<2>(bytes, planeBytes(format));
    putLittleEndian<2>(bytes, format.kind == PixelKind::Gray ? 2 : 1);
    bytes.resize(kHeaderLength, '\0');
    return bytes;
}

void putRuns(const std::vector<std::uint8_t>& plane, std::string& bytes) {
    for (std::size_t at = 0; at < plane.size();) {
        std::size_t length = 1;
        while (at + length < plane.size() && length < kMaxRun && plane[at + length] == plane[at])
            ++length;
        if (length > 1 || plane[at] >= kRunMark)
            bytes += static_cast<char>(kRunMark | length);
        bytes += static_cast<char>(plane[at]);
        at += length;
    }
}

std::string palette(const PixelFormat& format) {
    std::string bytes(1, static_cast<char>(kPaletteMark));
    for (std::size_t i = 0; i < 256; ++i) {
        const auto level = static_cast<std::uint8_t>(i);
        const Color color = format.kind == PixelKind::Gray ? Color{level, level, level}
                            : i < format.palette.size()    ? format.palette[i]
                                                           : kBlack;
        for (const std::uint8_t channel : {color.red, color.green, color.blue})
            bytes += static_cast<char>(channel);
    }
    return bytes;
}

} // namespace

void writePcx(PictureRows& rows, const Resolution& resolution, OutputFile& file) {
    const PixelFormat& format = rows.format();
    file.write(header(format, resolution));
    std::vector<std::uint8_t> row(rowBytes(format));
    std::vector<std::uint8_t> plane(planeBytes(format));
    const auto planes = static_cast<std::size_t>(planesOf(format.kind));
    for (int y = 0; y < format.height; ++y) {
        rows.read(row.data());
        std::string bytes;
        for (std::size_t p = 0; p < planes; ++p) {
            if (format.kind == PixelKind::Bilevel)
                packBits(row.data(), format.width, plane.data());
            else
                for (std::size_t x = 0; x < static_cast<std::size_t>(format.width); ++x)
                    plane[x] = row[x * planes + p];
            putRuns(plane, bytes);
        }
        file.write(bytes);
    }
    if (format.kind == PixelKind::Gray || format.kind == PixelKind::Palette)
        file.write(palette(format));
}

} // namespace orvane::pictures
