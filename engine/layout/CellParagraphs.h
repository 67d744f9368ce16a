#pragma once

#include "layout/LayoutParameters.h"
#include "layout/PageLayout.h"

#include <vector>

namespace orvane::layout {

/// The lines of one cell as paragraphs, top to bottom; what stands on one baseline becomes one line. `column` is the
/// room that the lines were broken in.
std::vector<ParagraphDraft> buildCellParagraphs(std::vector<Line> lines, ColumnSpan column,
                                                const LayoutParameters::Tables& parameters);

} // namespace orvane::layout
