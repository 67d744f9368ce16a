#pragma once

#include "base/PictureRows.h"
#include "pictures/OutputFile.h"

namespace orvane::pictures {

/// Writes a picture as binary PBM, PGM or PPM, by its kind of pixels. These formats know neither opacity nor
/// resolution. Requires: Bilevel, Gray, Gray16, Rgb or Rgb16.
void writeNetpbm(PictureRows& rows, OutputFile& file);

} // namespace orvane::pictures
