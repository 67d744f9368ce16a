#pragma once

#include "layout/page/PageLayout.h"
#include "layout/paragraphs/ParagraphParameters.h"

namespace orvane::layout {

/// Gives paragraphs what is drawn around them and belongs to nothing else: rules above, below and beside them as
/// borders, boxes as borders on all sides of what they hold, grounds as shading. Requires: columns and indents are
/// known.
void findParagraphBorders(PageLayout& layout, const ParagraphParameters::Borders& parameters);

} // namespace orvane::layout
