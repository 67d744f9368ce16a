#pragma once

#include "layout/running/RepeatedFigures.h"
#include "layout/running/RunningParameters.h"
#include "layout/running/RunningRow.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// A rule that most pages have in one place beyond all text: the border of a header or footer, which may have no text of
/// its own, or a side of a frame around the page, which is drawn with the header.
struct RepeatedRule {
    PageEdge edge = PageEdge::Top;
    Rule rule;               ///< as on the first page that has it
    std::vector<bool> pages; ///< those that have it
};

/// Finds the rules that repeat beyond the text (`bodies`, one for each page).
std::vector<RepeatedRule> findRepeatedRules(const std::vector<PageText>& pages, const std::vector<BodyRange>& bodies,
                                            const RunningParameters::RunningHeads& parameters);

/// Whether the rule is drawn in the same place.
bool isSamePlace(const Rule& rule, const Rule& other, const RunningParameters::RunningHeads& parameters);

} // namespace orvane::layout
