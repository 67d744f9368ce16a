#pragma once

#include "base/Diagnostic.h"
#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

#include <cstddef>

namespace orvane::layout {

/// Draws the rules and grounds that are neither of a table nor of a paragraph, behind the text where they stood. Where
/// they are more than `most` none is drawn, and the diagnostics tell. Requires: findParagraphBorders() has taken its
/// own.
void drawFreeRules(PageLayout& layout, const PageParameters::FreeDrawings& parameters, std::size_t most,
                   Diagnostics& diagnostics);

/// How many rules and grounds each page of a document may have drawn: with thousands of shapes, word processors take
/// minutes to lay a document out.
std::size_t mostFreeShapes(std::size_t pages, const PageParameters::FreeDrawings& parameters);

} // namespace orvane::layout
