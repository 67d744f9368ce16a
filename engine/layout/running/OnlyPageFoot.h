#pragma once

#include "layout/running/EdgeRows.h"

namespace orvane::layout {

/// Takes the rows at the foot of the only page of a document that stand apart from its text, near the edge: in smaller
/// letters, as the bank accounts below a letter, or with the number of a page. No other page can show that they
/// repeat. `edge` holds the rows at the foot.
void takeOnlyFoot(EdgeRows& edge, const PageText& page, const RunningParameters::RunningHeads& parameters);

} // namespace orvane::layout
