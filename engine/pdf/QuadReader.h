#pragma once

#include "base/Geometry.h"

#include <vector>

class AnnotQuadrilaterals;

namespace orvane::pdf {

/// The upright boxes of an annotation's quadrilaterals in page space, without those of no area; none for null.
std::vector<Rect> quadBoxes(const ::AnnotQuadrilaterals* quads, const Matrix& toPage);

} // namespace orvane::pdf
