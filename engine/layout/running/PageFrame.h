#pragma once

#include "layout/running/RepeatedFigures.h"
#include "layout/running/RunningParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// The four rules around all that the page's text holds (`body` from top to bottom), as the borders of pages are drawn;
/// none without such a frame. Where other rules meet its sides it is the outline of a table.
std::vector<const Rule*> findPageFrame(const PageText& page, const BodyRange& body,
                                       const RunningParameters::RunningHeads& parameters);

} // namespace orvane::layout
