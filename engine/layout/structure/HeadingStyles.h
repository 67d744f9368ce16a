#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Finds headings by how they look, in documents that do not tell them otherwise: short paragraphs set apart from the
/// text by size or weight, in looks that few paragraphs have and that text follows. Levels go by numbering, then size,
/// then weight.
void findHeadingsByStyle(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters);

} // namespace orvane::layout
