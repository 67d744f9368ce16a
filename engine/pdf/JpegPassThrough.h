#pragma once

#include "base/PictureData.h"

#include <optional>

class GfxImageColorMap;
class Stream;

namespace orvane::pdf {

/// The JPEG file inside a picture's stream, byte for byte; nothing when the stream is of another kind, or when readers
/// outside of PDF would show it in other colours than the page does (CMYK, an unusual Decode array or colour space, a
/// hint about the transform that stands outside of the file).
std::optional<PictureData> jpegAsItStands(::Stream& stream, GfxImageColorMap& colors);

} // namespace orvane::pdf
