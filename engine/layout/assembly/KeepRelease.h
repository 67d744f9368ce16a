#pragma once

#include "layout/assembly/AssembledBlock.h"

#include <vector>

namespace orvane::layout {

/// Lets pages end where they ended: a paragraph that was parted from the next one by a page's end is not kept with it,
/// and one of which a single line stood alone has no widow control.
void releaseKeeps(std::vector<AssembledBlock>& body);

} // namespace orvane::layout
