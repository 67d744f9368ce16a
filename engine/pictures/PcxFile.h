#pragma once

#include "base/PictureRows.h"
#include "pictures/OutputFile.h"
#include "pictures/Resolution.h"

namespace orvane::pictures {

/// Writes a picture as a PCX file of version 5: of 1 bit, of 8 bits with a palette, or of three planes. Requires:
/// Bilevel, Palette, Gray or Rgb, and no side longer than kMaxPcxSide.
void writePcx(PictureRows& rows, const Resolution& resolution, OutputFile& file);

/// The format counts pixels from 0 in 16 bits, and the bytes of a row, an even number, in 16 more.
inline constexpr int kMaxPcxSide = 65534;

} // namespace orvane::pictures
