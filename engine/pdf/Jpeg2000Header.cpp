#include "pdf/Jpeg2000Header.h"

namespace orvane::pdf {
namespace {

/// Places of the segment's fields behind its marker.
constexpr std::size_t kWidthAt = 4;
constexpr std::size_t kHeightAt = 8;
constexpr std::size_t kLeftAt = 12;
constexpr std::size_t kTopAt = 16;
constexpr std::size_t kComponentsAt = 36;
constexpr std::size_t kDepthAt = 38;

std::int64_t number(std::string_view bytes, std::size_t at, std::size_t length) {
    std::int64_t value = 0;
    for (const char c : bytes.substr(at, length))
        value = value << 8 | static_cast<unsigned char>(c);
    return value;
}

} // namespace

std::optional<Jpeg2000Header> readJpeg2000Header(std::string_view bytes) {
    const std::size_t start = bytes.find("\xFF\x4F\xFF\x51");
    if (start == std::string_view::npos || start + 4 + kDepthAt + 1 > bytes.size())
        return std::nullopt;
    const std::string_view segment = bytes.substr(start + 4);
    return Jpeg2000Header{number(segment, kWidthAt, 4) - number(segment, kLeftAt, 4),
                          number(segment, kHeightAt, 4) - number(segment, kTopAt, 4),
                          static_cast<int>(number(segment, kComponentsAt, 2)),
                          static_cast<std::uint8_t>(number(segment, kDepthAt, 1))};
}

} // namespace orvane::pdf
