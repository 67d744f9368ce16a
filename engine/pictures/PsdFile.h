#pragma once

#include "base/PictureRows.h"
#include "pictures/OutputFile.h"
#include "pictures/Resolution.h"

namespace orvane::pictures {

/// Writes a picture as a PSD file: flat, or with opacity as one layer beside the flat picture. Requires: Gray, Gray16,
/// GrayAlpha, Rgb, Rgb16 or RgbAlpha; no side longer than kMaxPsdSide, no more than kMaxPsdBytes of pixels.
void writePsd(PictureRows& rows, const Resolution& resolution, OutputFile& file);

inline constexpr int kMaxPsdSide = 30000;
inline constexpr std::int64_t kMaxPsdBytes = 0x7FFF0000;

} // namespace orvane::pictures
