#pragma once

#include "base/PictureData.h"

class SplashBitmap;

namespace orvane::pdf {

/// The part of a bitmap, in its pixels, that is wanted.
struct BitmapPart {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// A PNG of part of a bitmap of three bytes a pixel, with a palette where so few colours are in it that one holds them:
/// most drawings are a fraction as large so.
PictureData encodeBitmap(const SplashBitmap& bitmap, const BitmapPart& part);

} // namespace orvane::pdf
