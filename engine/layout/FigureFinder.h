#pragma once

#include "base/Diagnostic.h"
#include "layout/LayoutParameters.h"
#include "layout/PageText.h"

namespace orvane::layout {

/// The pictures and drawings of a page, in paint order. Pictures that were cut into strips or tiles become one figure
/// to be painted, spacers of a few points are left out, pictures behind the whole page are marked as background. Paths
/// that are no rules and grounds become drawings, one for each group that stands together. Requires: `isTaken` tells,
/// for each path of the page, whether it is nothing but rules and grounds; `lines` are those of the page.
std::vector<Figure> findFigures(const pdf::PageContent& page, const std::vector<bool>& isTaken,
                                const LayoutParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
