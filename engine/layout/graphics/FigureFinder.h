#pragma once

#include "base/Diagnostic.h"
#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Fills in the figures of a page, in paint order. Pictures that were cut into strips or tiles become one figure to be
/// painted, spacers of a few points are left out, pictures behind the page or behind running text are marked as
/// background. Paths that are no rules and grounds become drawings, one for each group that stands together. Requires:
/// `text` has lines, rules and grounds; `isRuling` tells for each path whether it is nothing but rules and grounds.
void findFigures(const pdf::PageContent& page, const std::vector<bool>& isRuling, PageText& text,
                 const GraphicsParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
