#pragma once

#include "layout/running/RunningScheme.h"
#include "layout/structure/PageFill.h"
#include "layout/structure/PageMaking.h"
#include "layout/structure/StructureParameters.h"

#include <vector>

namespace orvane::layout {

/// Reads the tops from the pages: the highest, or the one at which pages start with the rest of a paragraph. Pages that
/// start lower have space above their first paragraph.
PageTops findPageTops(const std::vector<PageFill>& fills, const RunningScheme& scheme,
                      const StructureParameters::PageSetup& parameters);

/// Whether the page's first block has space above it. Word processors leave that out where a page is simply full, so
/// such a page was started by hand. Programs that set pages by themselves let the first baseline stand at one height
/// whatever the letters above it.
bool startsLow(const PageFill& fill, double top, PageMaking making, const StructureParameters::PageSetup& parameters);

} // namespace orvane::layout
