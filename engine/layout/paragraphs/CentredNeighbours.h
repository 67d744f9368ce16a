#pragma once

#include "layout/page/PageLayout.h"
#include "layout/paragraphs/ParagraphParameters.h"

#include <vector>

namespace orvane::layout {

/// The longest line of a centred block fills its column, or nearly, and does not show by itself that it is centred:
/// what stands above or below it about the same middle does. Requires: paragraphs of one column, from top to bottom.
void centreAmongCentred(std::vector<ParagraphDraft>& paragraphs, const ParagraphParameters& parameters);

} // namespace orvane::layout
