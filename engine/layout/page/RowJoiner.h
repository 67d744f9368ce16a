#pragma once

#include "layout/paragraphs/ParagraphParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Joins lines of one column that stand side by side on a baseline into one line with a tabulator between them.
/// Requires: `lines` upright, from top to bottom.
std::vector<Line> joinRows(std::vector<Line> lines, const ParagraphParameters::Paragraphs& parameters);

} // namespace orvane::layout
