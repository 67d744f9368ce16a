#pragma once

#include "base/PictureData.h"

#include <optional>
#include <string>

class GfxImageColorMap;
class Stream;

namespace orvane::pdf {

/// Whether readers outside of PDF show the JPEG file `bytes`, which stands in `stream`, in the colours that the page
/// shows: no unusual Decode array, colour space or hint about the transform stands outside of the file. Of CMYK, these
/// readers hold every file to be inverted, as image editors write it, so it has to be inverted in the PDF too.
bool showsItsColors(const std::string& bytes, ::Stream& stream, GfxImageColorMap& colors);

/// The JPEG file inside a picture's stream, byte for byte; nothing when the stream is of another kind, or when readers
/// outside of PDF would show it in other colours than the page does (CMYK, an unusual Decode array or colour space, a
/// hint about the transform that stands outside of the file).
std::optional<PictureData> jpegAsItStands(::Stream& stream, GfxImageColorMap& colors);

} // namespace orvane::pdf
