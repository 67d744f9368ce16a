#pragma once

#include "base/PictureData.h"
#include "base/PictureRows.h"
#include "base/PngEncoder.h"

namespace orvane {

/// Reads all rows of a picture into a PNG of the same kind of pixels.
PictureData encodePng(PictureRows& rows, const PngExtras& extras = {});

} // namespace orvane
