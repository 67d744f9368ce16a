#pragma once

#include "base/Color.h"
#include "base/PictureData.h"

namespace orvane::tests {

/// A picture whose left half has one colour and whose right half is white, with a dark stripe at the top, so that
/// turning, mirroring and cutting it can be seen.
PictureData pngPicture(int width, int height, Color color);
PictureData jpegPicture(int width, int height, Color color);

} // namespace orvane::tests
