#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Takes away the rules that outline a ground in its own colour and that no other rule touches: nobody sees them.
void dropGroundOutlines(std::vector<Rule>& rules, const std::vector<Ground>& grounds,
                        const GraphicsParameters::Rules& parameters);

} // namespace orvane::layout
