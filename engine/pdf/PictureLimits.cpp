#include "pdf/PictureLimits.h"

#include "pdf/CodedSize.h"

#include <fmt/format.h>

#include <GfxState.h>
#include <Stream.h>

namespace orvane::pdf {
namespace {

constexpr std::int64_t kMaxPixels = 300'000'000;
/// The decoder of JPEG 2000 holds the whole picture, with several words a pixel.
constexpr std::int64_t kMaxJpeg2000Pixels = 60'000'000;
constexpr int kMaxSide = 1 << 20;

bool isDepthSane(int bits) {
    return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16;
}

bool isCodedSizeSane(::Stream& stream) {
    const auto coded = codedSize(stream);
    if (!coded)
        return true;
    return isSizeSane(coded->width, coded->height) &&
           (stream.getKind() != strJPX || coded->width * coded->height <= kMaxJpeg2000Pixels);
}

} // namespace

bool isSizeSane(std::int64_t width, std::int64_t height) {
    return width > 0 && height > 0 && width <= kMaxSide && height <= kMaxSide && width * height <= kMaxPixels;
}

bool isWithinLimits(const PictureSource& source, std::string& trouble) {
    if (!isSizeSane(source.width, source.height))
        trouble = fmt::format("a picture of {} by {} pixels is not decoded", source.width, source.height);
    else if (!isCodedSizeSane(*source.stream)) {
        const auto coded = codedSize(*source.stream);
        trouble = fmt::format("a picture coded as {} by {} pixels is not decoded", coded->width, coded->height);
    } else if (source.colors && !isDepthSane(source.colors->getBits()))
        trouble = "a picture's samples have an unknown size";
    else
        return true;
    return false;
}

bool isWithinLimits(const PictureMask& mask) {
    return isSizeSane(mask.width, mask.height) && (!mask.colors || isDepthSane(mask.colors->getBits())) &&
           isCodedSizeSane(*mask.stream);
}

} // namespace orvane::pdf
