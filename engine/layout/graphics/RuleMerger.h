#pragma once

#include "layout/LayoutParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Joins rules that continue each other, makes rows of short pieces dashed or dotted rules and close pairs double ones;
/// sorts them by direction and position.
void mergeRules(std::vector<Rule>& rules, const LayoutParameters& parameters);

} // namespace orvane::layout
