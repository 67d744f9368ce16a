#pragma once

#include "layout/running/RunningParameters.h"
#include "layout/text/PageText.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// Where the text of a page stands, running heads aside.
struct BodyRange {
    double top = 0;
    double bottom = 0;
};

/// Indices of the pictures of each page that stand in the same place on a page nearby: logos, watermarks, decorations.
/// Within the text (`bodies`, one for each page) more pages must agree.
std::vector<std::vector<std::size_t>> findRepeatedFigures(const std::vector<PageText>& pages,
                                                          const std::vector<BodyRange>& bodies,
                                                          const RunningParameters::RunningHeads& parameters);

} // namespace orvane::layout
