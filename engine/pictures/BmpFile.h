#pragma once

#include "base/PictureRows.h"
#include "pictures/OutputFile.h"
#include "pictures/Resolution.h"

namespace orvane::pictures {

/// Writes a picture as an uncompressed bitmap file: of 1 bit, of 8 bits with a palette, of 24 bits, or with opacity of
/// 32 bits under a header of version 4. Requires: Bilevel, Palette, Gray, Rgb or RgbAlpha, and no more than
/// kMaxBmpBytes of pixels.
void writeBmp(PictureRows& rows, const Resolution& resolution, OutputFile& file);

/// The format counts its bytes in 32 bits, and readers take them as signed.
inline constexpr std::int64_t kMaxBmpBytes = 0x7FFF0000;

} // namespace orvane::pictures
