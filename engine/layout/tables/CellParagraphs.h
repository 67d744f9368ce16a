#pragma once

#include "layout/LayoutParameters.h"
#include "layout/page/PageLayout.h"
#include "layout/paragraphs/LineMeasures.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace orvane::layout {

/// The lines of one cell as paragraphs, top to bottom; what stands on one baseline becomes one line. `room` is what the
/// lines were broken in; the paragraphs' indents count from the sides of `cell`. `vocabulary` is the document's.
std::vector<ParagraphDraft> buildCellParagraphs(std::vector<Line> lines, const Rect& cell, ColumnSpan room,
                                                const ParagraphContext& context,
                                                const std::unordered_set<std::string>& vocabulary,
                                                const LayoutParameters& parameters);

} // namespace orvane::layout
