#pragma once

#include "document/Drawing.h"
#include "layout/graphics/GraphicsParameters.h"
#include "pdf/PageContent.h"

#include <optional>

namespace orvane::layout {

/// The shading that fills the path, as it is seen within `box`. Nothing where it is none that a shape can be filled
/// with, leaves a part of the shape bare, or would look otherwise.
std::optional<document::Gradient> gradientIn(const Rect& box, const pdf::Path& path,
                                             const GraphicsParameters::Gradients& limits);

} // namespace orvane::layout
