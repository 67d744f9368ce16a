#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

namespace orvane::layout {

/// Puts a figure that takes no room before the paragraph that is nearest to it, of the flow or of the table's cell that
/// it lies in: what floats hangs on the paragraph behind it.
void hangOnNearestParagraph(PageLayout& layout, Figure figure, const PageParameters::FreeDrawings& parameters);

} // namespace orvane::layout
