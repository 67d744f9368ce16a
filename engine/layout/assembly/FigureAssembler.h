#pragma once

#include "layout/assembly/AssembledBlock.h"
#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// Size of the mark of a paragraph that holds a picture alone. Some word processors leave room for the mark's
/// descenders below the picture, some do not; with a mark this small both set what follows at one place.
constexpr HalfPoints kPictureMarkSize{2};

/// The figure's picture or drawing where it stood on page `page`, text around it.
document::Figure floatingFigure(const Figure& source, int page);

/// A picture between paragraphs becomes a paragraph of its own, any other floats where it stood. A drawing hangs on an
/// empty paragraph of its height: it moves with the text like a picture in it, and its labels can hang there as well.
AssembledBlock assembleFigure(const FigureDraft& draft, const DraftBlock& place, const AssemblyContext& context);

} // namespace orvane::layout
