#pragma once

#include "base/Diagnostic.h"
#include "layout/LayoutParameters.h"
#include "layout/inspect/InspectSvg.h"

#include <string>
#include <vector>

namespace orvane::layout {

/// A picture, as SVG, of what `stage` saw on the page `number`. All pages are needed: running heads and the measures of
/// the document come from the others.
/// Requires: a page of that number is among `pages`.
std::string inspectPage(std::vector<PageText> pages, int number, InspectStage stage, const LayoutParameters& parameters,
                        Diagnostics& diagnostics);

} // namespace orvane::layout
