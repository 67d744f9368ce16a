#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Finds tables of contents: entries that follow each other, each a text, a tabulator and the number of a page, the
/// numbers in order, and either filled by leaders or naming what stands elsewhere in the document. Levels are told by
/// the indents of the entries.
void findContents(DocumentDraft& draft, const LayoutParameters& parameters);

} // namespace orvane::layout
