#pragma once

#include "base/Diagnostic.h"
#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/page/PageLayout.h"

namespace orvane::layout {

/// Puts one page in order: tables first, then columns, then the paragraphs within each column, figures in their places.
/// Requires: running heads have been taken out of `page`.
PageLayout layoutPage(PageText page, const DocumentContext& context, const LayoutParameters& parameters,
                      Diagnostics& diagnostics);

} // namespace orvane::layout
