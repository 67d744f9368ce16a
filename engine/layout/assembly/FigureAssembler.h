#pragma once

#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// The figure's picture where it stood on page `page`, text around it.
document::Figure floatingFigure(const Figure& source, int page);

/// A picture between paragraphs becomes a paragraph of its own, any other floats where it stood.
document::Block assembleFigure(const FigureDraft& draft, const DraftBlock& place, const AssemblyContext& context);

} // namespace orvane::layout
