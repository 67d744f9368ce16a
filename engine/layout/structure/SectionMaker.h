#pragma once

#include "base/Diagnostic.h"
#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/running/RunningHeads.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Parts the draft into sections: by paper and running heads at page breaks, by columns within pages. Sets their
/// margins and columns, and marks blocks with which a page or column was started though the one before had room left.
void makeSections(DocumentDraft& draft, const std::vector<PageRunningHeads>& heads, const DocumentContext& context,
                  const LayoutParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
