#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// The column in which a table or figure stands: its section's or cell's where that is known, else the one seen on its
/// page, else just its own width.
ColumnSpan columnOf(const DraftBlock& block, const DocumentDraft& draft);

} // namespace orvane::layout
