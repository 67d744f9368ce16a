#include "pdf/JpegPassThrough.h"

#include <cmath>
#include <string>

#include <GfxState.h>
#include <Stream.h>

namespace orvane::pdf {
namespace {

/// What the frame header of a JPEG file says. Source: ITU-T T.81, B.2.2; the Adobe marker as in T.872, 6.5.3.
struct JpegHeader {
    int width = 0;
    int height = 0;
    int components = 0;
    int bits = 0;
    bool isCommonProcess = false; ///< baseline, extended or progressive Huffman
    bool isRgb = false;           ///< three components that are not YCbCr
};

int byteAt(const std::string& bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}
int wordAt(const std::string& bytes, std::size_t at) {
    return byteAt(bytes, at) << 8 | byteAt(bytes, at + 1);
}

bool isFrameMarker(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<JpegHeader> readHeader(const std::string& bytes) {
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
        if (marker == 0xEE && length >= 14 && bytes.compare(body, 5, "Adobe") == 0)
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

bool isPlainColorSpace(GfxColorSpace& space, int components) {
    switch (space.getMode()) {
    case csDeviceGray:
    case csCalGray:
        return components == 1;
    case csDeviceRGB:
    case csCalRGB:
        return components == 3;
    case csICCBased:
        return space.getNComps() == components && (components == 1 || components == 3);
    default:
        return false;
    }
}

bool hasDefaultDecode(const GfxImageColorMap& colors, int components) {
    for (int i = 0; i < components; ++i)
        if (std::abs(colors.getDecodeLow(i)) > 1e-6 || std::abs(colors.getDecodeHigh(i) - 1) > 1e-6)
            return false;
    return true;
}

std::string readAll(::Stream& stream) {
    std::string bytes;
    stream.fillString(bytes);
    stream.close();
    return bytes;
}

bool hasColorTransformHint(::Stream& stream) {
    const ::Dict* dictionary = stream.getDict();
    if (!dictionary)
        return false;
    const ::Object parameters = dictionary->lookup("DecodeParms");
    if (parameters.isDict())
        return parameters.getDict()->hasKey("ColorTransform");
    if (!parameters.isArray())
        return false;
    for (int i = 0; i < parameters.arrayGetLength(); ++i) {
        const ::Object entry = parameters.arrayGet(i);
        if (entry.isDict() && entry.getDict()->hasKey("ColorTransform"))
            return true;
    }
    return false;
}

} // namespace

std::optional<PictureData> jpegAsItStands(::Stream& stream, GfxImageColorMap& colors) {
    if (stream.getKind() != strDCT || !stream.getNextStream())
        return std::nullopt;
    const int components = colors.getNumPixelComps();
    if (!isPlainColorSpace(*colors.getColorSpace(), components) || !hasDefaultDecode(colors, components))
        return std::nullopt;
    std::string bytes = readAll(*stream.getNextStream());
    const auto header = readHeader(bytes);
    if (!header || header->components != components || header->bits != 8 || header->width <= 0 || header->height <= 0)
        return std::nullopt;
    if (!header->isCommonProcess || header->isRgb || (components == 3 && hasColorTransformHint(stream)))
        return std::nullopt;

    PictureData picture{PictureFormat::Jpeg, header->width, header->height, {}};
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    picture.bytes.assign(first, first + bytes.size());
    return picture;
}

} // namespace orvane::pdf
