#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

#include <vector>

namespace orvane::layout {

/// Tells the bands whose columns all have a rule between them, and uses those rules up: word processors draw them by
/// themselves.
void findColumnSeparators(std::vector<Band>& bands, std::vector<Rule>& rules,
                          const PageParameters::Separators& parameters);

} // namespace orvane::layout
