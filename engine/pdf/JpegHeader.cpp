#include "pdf/JpegHeader.h"

namespace orvane::pdf {
namespace {

int byteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}
int wordAt(std::string_view bytes, std::size_t at) {
    return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}

bool isFrameMarker(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

} // namespace

std::optional<JpegHeader> readJpegHeader(std::string_view bytes) {
    if (bytes.size() < 4 || byteAt(bytes, 0) != 0xFF || byteAt(bytes, 1) != 0xD8)
        return std::nullopt;
    JpegHeader header;
    bool hasAdobeRgb = false;
    for (std::size_t at = 2; at + 4 <= bytes.size();) {
        if (byteAt(bytes, at) != 0xFF)
            return std::nullopt;
        const int marker = byteAt(bytes, at + 1);
        if (marker == 0xFF) {
            ++at;
            continue;
        }
        const std::size_t length = static_cast<std::size_t>(wordAt(bytes, at + 2));
        if (length < 2 || at + 2 + length > bytes.size())
            return std::nullopt;
        const std::size_t body = at + 4;
        if (marker == 0xEE && length >= 14 && bytes.substr(body, 5) == "Adobe")
            hasAdobeRgb = byteAt(bytes, body + 11) == 0;
        if (isFrameMarker(marker) && length >= 8) {
            header.bits = byteAt(bytes, body);
            header.height = wordAt(bytes, body + 1);
            header.width = wordAt(bytes, body + 3);
            header.components = byteAt(bytes, body + 5);
            header.isCommonProcess = marker <= 0xC2;
            const bool hasRgbNames = header.components == 3 && length >= 17 && byteAt(bytes, body + 6) == 'R' &&
                                     byteAt(bytes, body + 9) == 'G' && byteAt(bytes, body + 12) == 'B';
            header.isRgb = header.components == 3 && (hasAdobeRgb || hasRgbNames);
            return header;
        }
        if (marker == 0xDA)
            return std::nullopt;
        at += 2 + length;
    }
    return std::nullopt;
}

} // namespace orvane::pdf
