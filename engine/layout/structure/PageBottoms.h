#pragma once

#include "layout/running/RunningScheme.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/structure/PageFill.h"
#include "layout/structure/PageMaking.h"
#include "layout/structure/StructureParameters.h"

#include <vector>

namespace orvane::layout {

/// The margin below the text of the pages of each scheme: above where what starts the next page would have had room,
/// below all that stands on the pages. Within that a margin that many schemes allow is that of all of them, for the
/// sections of a book differ in their heads rather than in their margins; a round one is preferred. Pages that a
/// program made have the least one, so that a line too many finds room. Units: points.
std::vector<double> findBottomMargins(const DocumentDraft& draft, const std::vector<PageFill>& fills,
                                      const std::vector<RunningScheme>& schemes, PageMaking making,
                                      const StructureParameters::PageSetup& parameters);

} // namespace orvane::layout
