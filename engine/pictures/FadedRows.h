#pragma once

#include "base/PictureRows.h"
#include "pdf/StateMask.h"

#include <memory>

namespace orvane::pictures {

/// The picture with the mask laid over the opacity that it has by itself; it comes as GrayAlpha or RgbAlpha.
std::unique_ptr<PictureRows> fadeRows(std::unique_ptr<PictureRows> rows, pdf::StateMask mask);

} // namespace orvane::pictures
