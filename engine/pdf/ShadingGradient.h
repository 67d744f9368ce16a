#pragma once

#include "pdf/PageContent.h"

class GfxAxialShading;
class GfxRadialShading;

namespace orvane::pdf {

/// The shading as it lies on the page; null where it cannot be told as a gradient. `toPage` leads from the shading's
/// space to page space.
/// Source: ISO 32000-1, 8.7.4.5.3 (axial shadings), 8.7.4.5.4 (radial shadings).
std::shared_ptr<const Gradient> gradientOf(GfxAxialShading& shading, const Matrix& toPage);
/// Circles that the page shows as ellipses are none.
std::shared_ptr<const Gradient> gradientOf(GfxRadialShading& shading, const Matrix& toPage);

} // namespace orvane::pdf
