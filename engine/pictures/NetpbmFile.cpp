#include "pictures/NetpbmFile.h"

#include <vector>

#include <fmt/format.h>

namespace orvane::pictures {
namespace {

std::string header(const PixelFormat& format) {
    switch (format.kind) {
    case PixelKind::Bilevel:
        return fmt::format("P4\n{} {}\n", format.width, format.height);
    case PixelKind::Gray:
        return fmt::format("P5\n{} {}\n255\n", format.width, format.height);
    case PixelKind::Gray16:
        return fmt::format("P5\n{} {}\n65535\n", format.width, format.height);
    case PixelKind::Rgb16:
        return fmt::format("P6\n{} {}\n65535\n", format.width, format.height);
    default:
        return fmt::format("P6\n{} {}\n255\n", format.width, format.height);
    }
}

} // namespace

void writeNetpbm(PictureRows& rows, OutputFile& file) {
    const PixelFormat& format = rows.format();
    file.write(header(format));
    std::vector<std::uint8_t> row(rowBytes(format));
    std::vector<std::uint8_t> packed((row.size() + 7) / 8);
    for (int y = 0; y < format.height; ++y) {
        rows.read(row.data());
        if (format.kind != PixelKind::Bilevel) {
            file.write(row.data(), row.size());
            continue;
        }
        for (std::uint8_t& value : row)
            value ^= 1; // ones are black
        packBits(row.data(), format.width, packed.data());
        file.write(packed.data(), packed.size());
    }
}

} // namespace orvane::pictures
