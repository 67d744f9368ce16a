#pragma once

#include "layout/BlockAssembler.h"

#include <vector>

namespace orvane::layout {

/// Sets the space between blocks that stand one below the other from the gaps on their pages, as space after the upper
/// paragraph; before a paragraph that follows a table or a picture, as space before it.
void setSpacing(std::vector<AssembledBlock>& blocks, const LayoutParameters& parameters);

} // namespace orvane::layout
