#pragma once

#include "layout/LayoutParameters.h"
#include "layout/page/PageLayout.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// Draws the rules and grounds that are neither of a table nor of a paragraph, behind the text where they stood. Where
/// they are more than `most`, those of one look are one shape; where that is still more, all are one drawing that is to
/// be painted as a picture. Requires: findParagraphBorders() has taken its own.
void drawFreeRules(PageLayout& layout, std::size_t most, const LayoutParameters& parameters);

/// How many rules and grounds the page has to draw.
std::size_t countFreeShapes(const PageLayout& layout, const PageParameters::FreeDrawings& parameters);

/// How many shapes a page of a document may have, if its pages have so many rules and grounds: with thousands of
/// shapes, word processors take minutes to lay a document out. Pages with few leave what they do not need to the
/// others.
std::size_t mostFreeShapes(std::vector<std::size_t> ofPages, const PageParameters::FreeDrawings& parameters);

} // namespace orvane::layout
