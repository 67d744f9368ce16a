#pragma once

#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// A paragraph with nothing in it, as high as a line of body text.
document::Paragraph emptyParagraph(const AssemblyContext& context);

/// Likewise, no higher than the room there is. Unit: points.
document::Paragraph emptyParagraphWithin(double room, const AssemblyContext& context);

} // namespace orvane::layout
