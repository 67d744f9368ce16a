#pragma once

#include "layout/running/RunningHeads.h"
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
/// Within the text (`bodies`, one for each page) more pages must agree, and not in the words over it too: a chart that
/// is shown again is none.
std::vector<std::vector<std::size_t>> findRepeatedFigures(const std::vector<PageText>& pages,
                                                          const std::vector<BodyRange>& bodies,
                                                          const RunningParameters::RunningHeads& parameters);

/// Moves the figures `repeated` to the head or foot on their half of the page. What repeats of a drawing within the
/// text is the drawing: returns the words over such ones, which are the page's own.
std::vector<Line> takeRepeatedFigures(PageText& page, const std::vector<std::size_t>& repeated, const BodyRange& body,
                                      PageRunningHeads& heads);

} // namespace orvane::layout
