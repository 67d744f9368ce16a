#pragma once

#include "base/PictureData.h"

class SplashBitmap;

namespace orvane::pdf {

/// What was painted on black and on white, as a picture with opacity. Requires: two bitmaps of red, green and blue, of
/// one size.
PictureData transparentPicture(SplashBitmap& onBlack, SplashBitmap& onWhite);

} // namespace orvane::pdf
