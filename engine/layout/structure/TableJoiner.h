#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes one table of the parts that page breaks have cut it into: tables that follow each other from one page to the
/// next with the same columns. A head that each part repeats stays once and becomes the header rows; a row that the
/// page break cut in two is made whole. Requires: running heads are no longer among the blocks.
void joinTables(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters);

} // namespace orvane::layout
