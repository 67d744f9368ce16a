#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

#include <optional>

namespace orvane::layout {

/// Shapes, and the box around them, which is that of the drawing but for the widths of lines.
struct ShapedDrawing {
    document::Drawing drawing;
    Rect box;
};

/// The drawing in shapes that can be edited one by one. Nothing where they would not look as painted (patterns, masks,
/// odd clips, pictures among them), and where they are so many that nobody would edit them.
std::optional<ShapedDrawing> shapesOf(const Figure& drawing, const pdf::PageContent& page,
                                      const GraphicsParameters& parameters);

} // namespace orvane::layout
