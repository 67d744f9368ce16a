#include "pdf/JpegPassThrough.h"

#include "pdf/JpegHeader.h"

#include <cmath>
#include <string>

#include <GfxState.h>
#include <Stream.h>

namespace orvane::pdf {
namespace {

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
    const auto header = readJpegHeader(bytes);
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
