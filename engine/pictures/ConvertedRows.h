#pragma once

#include "base/PictureRows.h"

#include <memory>

namespace orvane::pictures {

/// True when all of the picture's colours are greys.
bool isGray(const PixelFormat& format);
bool hasAlpha(const PixelFormat& format);

/// The picture in another kind of pixels. Transparent parts come on white where the kind has no opacity; a stencil that
/// would be white on white comes in black. For PixelKind::Bilevel greys and colours are spread into dots (error
/// diffusion). Requires: `kind` is Bilevel, Gray, GrayAlpha, Rgb or RgbAlpha, and one with opacity when the picture is
/// to keep it.
std::unique_ptr<PictureRows> convertRows(std::unique_ptr<PictureRows> rows, PixelKind kind);

/// The picture's opacity alone, as Gray: white is opaque.
std::unique_ptr<PictureRows> opacityRows(std::unique_ptr<PictureRows> rows);

} // namespace orvane::pictures
