#pragma once

#include "layout/text/TextDraft.h"
#include "layout/text/TextParameters.h"

namespace orvane::layout {

/// Turns runs of dots, hyphens or underscores that lead the eye to what ends the row (a page number, a price) into a
/// tab with a leader: their clusters go, the next one's gapBefore says what filled the gap. Other runs, a blank to fill
/// in for instance, stay. Requires: findWordGaps() has been here.
void findLeaders(TextRow& row, const TextParameters& parameters);

} // namespace orvane::layout
