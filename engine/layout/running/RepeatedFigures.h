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
/// Within the text (`bodies`, one for each page) more pages must agree.
std::vector<std::vector<std::size_t>> findRepeatedFigures(const std::vector<PageText>& pages,
                                                          const std::vector<BodyRange>& bodies,
                                                          const RunningParameters::RunningHeads& parameters);

/// What became of the words over drawings that were moved to a head.
enum class Labels { None, GivenBack };

/// Moves the figures `repeated` to the head or foot on their half of the page. What repeats of a drawing within the
/// text is the drawing: the words over it are given back, as the last lines of the page.
Labels takeRepeatedFigures(PageText& page, const std::vector<std::size_t>& repeated, const BodyRange& body,
                           PageRunningHeads& heads);

} // namespace orvane::layout
