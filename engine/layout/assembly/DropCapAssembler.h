#pragma once

#include "layout/assembly/TextAssembler.h"

namespace orvane::layout {

/// Lets the paragraph begin with the drop cap that its first line shows. One whose first letters are more than text (a
/// link, a field), or that is an item of a list, stays as it is.
/// Requires: the paragraph's text and line spacing are those of the draft.
void setDropCap(document::Paragraph& paragraph, const DraftParagraph& draft, const AssemblyContext& context);

} // namespace orvane::layout
