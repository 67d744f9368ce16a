#pragma once

#include "base/Diagnostic.h"
#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/running/RunningScheme.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Puts the running heads of the scheme's pages in order and makes them the section's, with the distances that they
/// keep from the page's edges.
void makeRunningText(DocumentDraft& draft, DraftSection& section, const RunningScheme& scheme,
                     const std::vector<PageRunningHeads>& heads, const DocumentContext& context,
                     const LayoutParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
