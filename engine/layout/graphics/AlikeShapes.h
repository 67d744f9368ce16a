#pragma once

#include "document/Document.h"
#include "layout/graphics/GraphicsParameters.h"

#include <vector>

namespace orvane::layout {

/// Joins shapes of one look into one of several outlines, as far as the painting order allows: what word processors lay
/// out for minutes as thousands of shapes is quick as a few. It looks the same.
std::vector<document::Shape> joinAlike(std::vector<document::Shape> shapes,
                                       const GraphicsParameters::Shapes& parameters);

} // namespace orvane::layout
