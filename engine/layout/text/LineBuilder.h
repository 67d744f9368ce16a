#pragma once

#include "base/Diagnostic.h"
#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Cuts rows that run across the page into lines: at gutters between columns or table cells. Wide gaps that stay inside
/// a line become tabs, runs of dots before a page number become their leader. Requires: findWordGaps() has been here;
/// `rules` and `grounds` are those of the page.
std::vector<TextRow> buildLines(std::vector<TextRow> rows, const std::vector<TextFrame>& frames,
                                const std::vector<Rule>& rules, const std::vector<Ground>& grounds,
                                const TextParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
