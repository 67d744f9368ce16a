#pragma once

#include "base/Color.h"
#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// Takes the grounds that give nearly every page one colour from edge to edge out of the pages: the colour of the
/// paper, as an author sets it for the document, lies behind everything and is no shading of what stands on it.
std::optional<Color> takePageColor(std::vector<PageText>& pages, const GraphicsParameters::PageColor& parameters);

} // namespace orvane::layout
