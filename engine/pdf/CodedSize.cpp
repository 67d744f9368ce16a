#include "pdf/CodedSize.h"

#include "pdf/JpegHeader.h"

#include <string>
#include <string_view>

#include <Object.h>

namespace orvane::pdf {
namespace {

/// Headers stand at the start; what precedes them (profiles, dictionaries of symbols) is seldom longer.
constexpr int kHeaderReach = 1 << 18;

std::int64_t number(std::string_view bytes, std::size_t at, std::size_t length) {
    std::int64_t value = 0;
    for (std::size_t i = 0; i < length; ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

std::optional<PixelSize> ofJpeg(std::string_view bytes) {
    const auto header = readJpegHeader(bytes);
    return header ? std::optional(PixelSize{header->width, header->height}) : std::nullopt;
}

/// The SIZ segment, which follows the start of the codestream. Source: ITU-T T.800, A.5.1.
std::optional<PixelSize> ofJpeg2000(std::string_view bytes) {
    const std::size_t start = bytes.find("\xFF\x4F\xFF\x51");
    if (start == std::string_view::npos || start + 24 > bytes.size())
        return std::nullopt;
    const std::size_t size = start + 8;
    return PixelSize{number(bytes, size, 4) - number(bytes, size + 8, 4),
                     number(bytes, size + 4, 4) - number(bytes, size + 12, 4)};
}

/// The page information segment. Source: ITU-T T.88, 7.2 and 7.4.8.
std::optional<PixelSize> ofJbig2(std::string_view bytes) {
    constexpr int kPageInformation = 48;
    std::size_t at = 0;
    while (at + 11 <= bytes.size()) {
        const std::int64_t segment = number(bytes, at, 4);
        const auto flags = static_cast<int>(number(bytes, at + 4, 1));
        std::int64_t references = number(bytes, at + 5, 1) >> 5;
        std::size_t header = at + 6;
        if (references == 7) {
            if (at + 9 > bytes.size())
                return std::nullopt;
            references = number(bytes, at + 5, 4) & 0x1FFFFFFF;
            header = at + 9 + static_cast<std::size_t>((references + 8) / 8);
        }
        const std::size_t referenceBytes = segment <= 256 ? 1 : segment <= 65536 ? 2 : 4;
        header += static_cast<std::size_t>(references) * referenceBytes + ((flags & 0x40) != 0 ? 4 : 1);
        if (header + 12 > bytes.size())
            return std::nullopt;
        const std::size_t data = header + 4;
        if ((flags & 0x3F) == kPageInformation)
            return PixelSize{number(bytes, data, 4), number(bytes, data + 4, 4)};
        at = data + static_cast<std::size_t>(number(bytes, header, 4));
    }
    return std::nullopt;
}

std::string startOf(::Stream& stream) {
    std::string bytes(kHeaderReach, '\0');
    stream.reset();
    const int got = stream.doGetChars(kHeaderReach, reinterpret_cast<unsigned char*>(bytes.data()));
    stream.close();
    bytes.resize(static_cast<std::size_t>(got > 0 ? got : 0));
    return bytes;
}

} // namespace

std::optional<PixelSize> codedSize(::Stream& stream) {
    ::Stream* coded = stream.getNextStream();
    if (!coded)
        return std::nullopt;
    switch (stream.getKind()) {
    case strDCT:
        return ofJpeg(startOf(*coded));
    case strJPX:
        return ofJpeg2000(startOf(*coded));
    case strJBIG2: {
        auto size = ofJbig2(startOf(*coded));
        // A page whose height is told at its end grows with its data.
        if (size && size->height == 0xFFFFFFFF)
            size->height = 1;
        return size;
    }
    default:
        return std::nullopt;
    }
}

} // namespace orvane::pdf
