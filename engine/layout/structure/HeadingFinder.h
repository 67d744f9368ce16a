#pragma once

#include "layout/DocumentContext.h"
#include "layout/Layout.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Gives headings and the document's title their roles and levels. What the file says itself goes before what its looks
/// suggest: first the structure tree, then the outline, each if it agrees with the text; then numbers, sizes and
/// weights.
void findHeadings(DocumentDraft& draft, const DocumentFacts& facts, const DocumentContext& context,
                  const LayoutParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
