#pragma once

#include "layout/running/EdgeRows.h"
#include "layout/running/PageNumbers.h"

#include <optional>

namespace orvane::layout {

/// Takes the outermost row of the only page of a document where it says "1 of 1" in whatever words, or at the foot
/// nothing but a number; returns that of the page if it did. `edge` holds the rows at one edge.
std::optional<PageNumber> takeOnlyNumber(EdgeRows& edge, PageEdge side, const PageText& page,
                                         const RunningParameters::RunningHeads& parameters);

/// Takes the rows at the foot of the only page of a document, or of the first, that stand apart from its text, near the
/// edge: in smaller letters, as the bank accounts below a letter, with the number of a page, or far below it in the
/// margin. No other page shows that they repeat. `edge` holds the rows at the foot.
void takeOnlyFoot(EdgeRows& edge, const PageText& page, const RunningParameters::RunningHeads& parameters);

} // namespace orvane::layout
