#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/AssemblyParameters.h"

#include <vector>

namespace orvane::layout {

// A section has one distance for all its headers, and one for its footers. Where those of odd, even and first pages
// stand at different heights it is that of the outermost; the others keep their place by space on their outer side.
// Requires: the blocks are measured. Units: points, page space.

/// Puts the header's first paragraph as far below `edge` as it stood. `edge`: where the section's headers start.
void holdBelow(double edge, std::vector<AssembledBlock>& header, const AssemblyParameters::Spacing& parameters);

/// Puts the footer's last paragraph as far above `edge` as it stood. `edge`: where the section's footers end.
void holdAbove(double edge, std::vector<AssembledBlock>& footer, const AssemblyParameters::Spacing& parameters);

} // namespace orvane::layout
