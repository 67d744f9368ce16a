#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Joins rules that continue each other, makes rows of short pieces dashed or dotted rules and close pairs double ones;
/// sorts them by direction and position.
void mergeRules(std::vector<Rule>& rules, const GraphicsParameters& parameters);

} // namespace orvane::layout
