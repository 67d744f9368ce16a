#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

#include <cstddef>

namespace orvane::layout {

/// Draws the rules and grounds that are neither of a table nor of a paragraph, behind the text where they stood, so
/// that nothing that was painted is lost. False, with nothing drawn, where they are more than `most`.
/// Requires: findParagraphBorders() has taken its own.
bool drawFreeRules(PageLayout& layout, const PageParameters::FreeDrawings& parameters, std::size_t most);

/// How many rules and grounds each page of a document may have drawn: with thousands of shapes, word processors take
/// minutes to lay a document out.
std::size_t mostFreeShapes(std::size_t pages);

} // namespace orvane::layout
