#include "pdf/Jbig2Size.h"

namespace orvane::pdf {
namespace {

constexpr std::int64_t kUnknown = 0xFFFFFFFF; ///< a height or length that is told at the end

/// One segment's header. Source: ITU-T T.88, 7.2.
struct Segment {
    int type = 0;
    std::int64_t length = 0;
    std::size_t data = 0; ///< where its data starts
};

std::int64_t number(std::string_view bytes, std::size_t at, std::size_t length) {
    std::int64_t value = 0;
    for (std::size_t i = 0; i < length && at + i < bytes.size(); ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

std::optional<Segment> segmentAt(std::string_view bytes, std::size_t at) {
    if (at + 11 > bytes.size())
        return std::nullopt;
    const std::int64_t index = number(bytes, at, 4);
    const auto flags = static_cast<int>(number(bytes, at + 4, 1));
    std::int64_t references = number(bytes, at + 5, 1) >> 5;
    std::size_t header = at + 6;
    if (references == 7) {
        references = number(bytes, at + 5, 4) & 0x1FFFFFFF;
        header = at + 9 + static_cast<std::size_t>((references + 8) / 8);
    }
    const std::size_t referenceBytes = index <= 256 ? 1 : index <= 65536 ? 2 : 4;
    header += static_cast<std::size_t>(references) * referenceBytes + ((flags & 0x40) != 0 ? 4 : 1);
    if (header + 4 > bytes.size())
        return std::nullopt;
    return Segment{flags & 0x3F, number(bytes, header, 4), header + 4};
}

bool isRegion(int type) {
    switch (type) {
    case 4:
    case 6:
    case 7:
    case 20:
    case 22:
    case 23:
    case 36:
    case 38:
    case 39:
    case 40:
    case 42:
    case 43:
        return true;
    default:
        return false;
    }
}

/// How many symbols a dictionary claims. Source: ITU-T T.88, 7.4.2.1.
std::int64_t symbolCount(std::string_view bytes, std::size_t data) {
    const std::int64_t flags = number(bytes, data, 2);
    const bool isHuffman = (flags & 1) != 0;
    const bool isRefined = (flags & 2) != 0;
    const std::size_t templateBytes = isHuffman ? 0 : (flags >> 10 & 3) == 0 ? 8 : 2;
    const std::size_t refinementBytes = isRefined && (flags >> 12 & 1) == 0 ? 4 : 0;
    const std::size_t counts = data + 2 + templateBytes + refinementBytes;
    return number(bytes, counts, 4) + number(bytes, counts + 4, 4);
}

PixelSize sizeOf(std::string_view bytes, const Segment& segment) {
    constexpr int kSymbolDictionary = 0;
    constexpr int kPageInformation = 48;
    if (segment.type == kSymbolDictionary)
        return {symbolCount(bytes, segment.data), 1};
    if (segment.type != kPageInformation && !isRegion(segment.type))
        return {};
    PixelSize size{number(bytes, segment.data, 4), number(bytes, segment.data + 4, 4)};
    if (size.height == kUnknown)
        size.height = 1; // it grows with its stripes
    return size;
}

} // namespace

std::optional<PixelSize> largestJbig2Size(std::string_view bytes) {
    std::optional<PixelSize> largest;
    std::size_t at = 0;
    while (const auto segment = segmentAt(bytes, at)) {
        const PixelSize size = sizeOf(bytes, *segment);
        if (size.width > 0 && (!largest || size.width * size.height > largest->width * largest->height))
            largest = size;
        if (segment->length == kUnknown)
            break;
        at = segment->data + static_cast<std::size_t>(segment->length);
    }
    return largest;
}

} // namespace orvane::pdf
