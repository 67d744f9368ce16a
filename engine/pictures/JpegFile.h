#pragma once

#include "base/PictureRows.h"
#include "pictures/OutputFile.h"
#include "pictures/Resolution.h"

namespace orvane::pictures {

/// Compresses a picture to a JPEG file, finely enough that text in it stays clean. Requires: Gray or Rgb, and no side
/// longer than kMaxJpegSide.
/// Errors: Failure(TargetUnwritable); std::bad_alloc.
void writeJpeg(PictureRows& rows, const Resolution& resolution, OutputFile& file);

inline constexpr int kMaxJpegSide = 65500;

} // namespace orvane::pictures
