#pragma once

#include "layout/text/PageText.h"

namespace orvane::layout {

/// What the rule covers. Units: points.
Rect boxOf(const Rule& rule);

} // namespace orvane::layout
