#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// The tab stops that the paragraph's tabulators need, from where the words behind them stand.
std::vector<document::TabStop> findTabStops(const DraftParagraph& paragraph, const LayoutParameters& parameters);

} // namespace orvane::layout
