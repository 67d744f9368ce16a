#pragma once

#include "layout/page/PageLayout.h"
#include "layout/paragraphs/ParagraphParameters.h"

#include <vector>

namespace orvane::layout {

/// The longest line of a centred block fills its column, or nearly, and does not show by itself that it is centred:
/// what stands above or below it about the same middle does. Requires: paragraphs of one column, from top to bottom.
void centreAmongCentred(std::vector<ParagraphDraft>& paragraphs, const ParagraphParameters& parameters);

/// Makes lines that only seem to stand in the middle, or at the end, of a column start where several others start: the
/// column is as narrow as its texts, and one of these may leave equal room by chance.
void startAmongStarts(std::vector<ParagraphDraft>& paragraphs, const ColumnSpan& column,
                      const ParagraphParameters& parameters);

} // namespace orvane::layout
