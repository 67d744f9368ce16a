#pragma once

#include "base/Diagnostic.h"
#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Lets rules and grounds that belong to words become their underline, strike or highlight, and marks them as used;
/// gives words that lie in a link's boxes their Look::link. A rule that is a border, or a line to write on, stays a
/// rule.
void decorateText(std::vector<TextRow>& lines, const std::vector<TextFrame>& frames, std::vector<Rule>& rules,
                  std::vector<Ground>& grounds, const std::vector<pdf::Link>& links, const TextParameters& parameters,
                  Diagnostics& diagnostics);

} // namespace orvane::layout
