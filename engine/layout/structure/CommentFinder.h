#pragma once

#include "base/Diagnostic.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Ties the notes that readers left on the pages to the words they stand at. One on a page without text is told to
/// `diagnostics`.
void findComments(DocumentDraft& draft, Diagnostics& diagnostics);

} // namespace orvane::layout
