#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes one paragraph of those that follow each other without space where the document sets its paragraphs apart by
/// space: their lines were ended by hand. The space must be that of a style, less than a line and nearly everywhere the
/// same; empty lines between paragraphs say nothing.
void joinLinesEndedByHand(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters);

} // namespace orvane::layout
