#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

namespace orvane::layout {

/// Draws the rules and grounds that are neither of a table nor of a paragraph, behind the text where they stood, so
/// that nothing that was painted is lost. Requires: findParagraphBorders() has taken its own.
void drawFreeRules(PageLayout& layout, const PageParameters::FreeDrawings& parameters);

} // namespace orvane::layout
