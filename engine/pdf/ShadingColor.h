#pragma once

#include "base/Color.h"

class GfxShading;

namespace orvane::pdf {

/// One colour for a whole shading: the mean of its samples.
Color meanColorOf(GfxShading& shading);

} // namespace orvane::pdf
