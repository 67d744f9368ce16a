#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Takes the broad bars out of the grounds that are the short sides of a grid of broad rules: those that lead from one
/// rule of their colour to another, one of them as broad as a bar. Broad rules that end at the edge of such a one go on
/// to its middle, where those of any other grid meet.
void takeBroadRules(std::vector<Rule>& rules, std::vector<Ground>& grounds, const GraphicsParameters::Rules& limits);

} // namespace orvane::layout
