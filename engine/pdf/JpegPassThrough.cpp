#include "pdf/JpegPassThrough.h"

#include "pdf/JpegHeader.h"
#include "pdf/SampleColors.h"

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

/// A CMYK file is inverted outside of PDF, so the PDF has to invert it too.
bool isInvertedCmyk(GfxImageColorMap& colors) {
    const GfxColorSpaceMode mode = colors.getColorSpace()->getMode();
    if (colors.getNumPixelComps() != 4 || (mode != csDeviceCMYK && mode != csICCBased))
        return false;
    for (int i = 0; i < 4; ++i)
        if (std::abs(colors.getDecodeLow(i) - 1) > 1e-6 || std::abs(colors.getDecodeHigh(i)) > 1e-6)
            return false;
    return true;
}

} // namespace

bool showsItsColors(const std::string& bytes, ::Stream& stream, GfxImageColorMap& colors) {
    const auto header = readJpegHeader(bytes);
    const int components = colors.getNumPixelComps();
    if (!header || header->components != components || header->bits != 8 || header->width <= 0 || header->height <= 0)
        return false;
    if (!header->isCommonProcess || header->isRgb || (components >= 3 && hasColorTransformHint(stream)))
        return false;
    return isInvertedCmyk(colors) ||
           (isPlainColorSpace(*colors.getColorSpace(), components) && hasDefaultDecode(colors));
}

std::optional<PictureData> jpegAsItStands(::Stream& stream, GfxImageColorMap& colors) {
    // Word processors differ in what they make of CMYK.
    if (stream.getKind() != strDCT || !stream.getNextStream() || colors.getNumPixelComps() == 4)
        return std::nullopt;
    const std::string bytes = readAll(*stream.getNextStream());
    if (!showsItsColors(bytes, stream, colors))
        return std::nullopt;
    const auto header = readJpegHeader(bytes);
    PictureData picture{PictureFormat::Jpeg, header->width, header->height, {}};
    const auto* first = reinterpret_cast<const std::byte*>(bytes.data());
    picture.bytes.assign(first, first + bytes.size());
    return picture;
}

} // namespace orvane::pdf
