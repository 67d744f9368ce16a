#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Measures what the pages have in common.
/// Requires: running heads have been taken out of `pages`, so that the text area is that of the text.
DocumentContext analyseDocument(const std::vector<PageText>& pages, const LayoutParameters& parameters);

} // namespace orvane::layout
