#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/structure/PageFill.h"

#include <vector>

namespace orvane::layout {

/// The area within which the pages `firstPage` to `lastPage` (indices) set their text; page space. Where nothing shows
/// an edge exactly it is chosen so that lines and pages break where they broke, as a round margin if one fits.
Rect findTextArea(const DocumentDraft& draft, const std::vector<PageFill>& fills, std::size_t firstPage,
                  std::size_t lastPage, const LayoutParameters& parameters);

} // namespace orvane::layout
