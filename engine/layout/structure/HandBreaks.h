#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes one paragraph of those that follow each other without space where the document sets its paragraphs apart by
/// space: their lines were ended by hand. The space must be that of a style, less than a line and nearly everywhere the
/// same; empty lines between paragraphs say nothing.
void joinLinesEndedByHand(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters);

/// Makes the lines of the next block's paragraph a part of the block's, which ends its own last line by hand.
void appendByHand(DraftBlock& block, DraftBlock& next);

} // namespace orvane::layout
