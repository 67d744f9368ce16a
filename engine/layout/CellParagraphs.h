#pragma once

#include "layout/LayoutParameters.h"
#include "layout/PageLayout.h"

#include <vector>

namespace orvane::layout {

/// The lines of one cell as paragraphs, top to bottom; what stands on one baseline becomes one line.
std::vector<ParagraphDraft> buildCellParagraphs(std::vector<Line> lines, const Rect& cell,
                                                const LayoutParameters::Tables& parameters);

} // namespace orvane::layout
