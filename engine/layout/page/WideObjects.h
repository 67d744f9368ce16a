#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

namespace orvane::layout {

/// Gives every table and picture in the flow that leads across columns, above or below all of their lines, a band of
/// its own. Units: `bodyFontSize` in points.
void partWideObjects(PageLayout& layout, double bodyFontSize, const PageParameters::ReadingOrder& parameters);

} // namespace orvane::layout
