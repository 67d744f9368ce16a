#include "layout/structure/PageTops.h"

#include "layout/support/Tally.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

double topOf(const PageFill& fill) {
    return std::isfinite(fill.flowTop) ? fill.flowTop : fill.top;
}

/// The top that some pages show.
struct SharedTop {
    double top = 0;
    bool isSure = false; ///< several pages show it, or one that starts within a paragraph
    bool isKnown = false;
};

SharedTop sharedTop(const std::vector<PageFill>& fills, std::size_t first, std::size_t last,
                    const StructureParameters::PageSetup& limits) {
    std::vector<double> tops, ofRests;
    for (std::size_t i = first; i <= last; ++i) {
        if (fills[i].isEmpty)
            continue;
        tops.push_back(topOf(fills[i]));
        if (fills[i].showsTop)
            ofRests.push_back(topOf(fills[i]));
    }
    if (tops.empty())
        return {};
    // Nothing stands above the rest of a paragraph or table, so that shows the margin to the hair.
    if (const auto top = mostFrequent(ofRests, limits.tidyTolerance))
        return {*top, true, true};
    const double least = *std::min_element(tops.begin(), tops.end());
    const auto agreeing =
        std::count_if(tops.begin(), tops.end(), [&](double top) { return top <= least + limits.sameEdge; });
    return {least, agreeing > 1, true};
}

} // namespace

PageTops findPageTops(const std::vector<PageFill>& fills, const RunningScheme& scheme,
                      const StructureParameters::PageSetup& parameters) {
    const SharedTop all = sharedTop(fills, scheme.firstPage, scheme.lastPage, parameters);
    PageTops tops{all.isKnown ? std::max(0.0, all.top) : parameters.usualMargin, scheme.firstPage, std::nullopt};
    if (!scheme.hasOwnFirstPage || scheme.firstPage == scheme.lastPage)
        return tops;
    const SharedTop first = sharedTop(fills, scheme.firstPage, scheme.firstPage, parameters);
    const SharedTop others = sharedTop(fills, scheme.firstPage + 1, scheme.lastPage, parameters);
    if (first.isKnown && others.isSure && first.top < others.top - parameters.sameEdge) {
        tops.margin = std::max(0.0, first.top);
        tops.pushed = others.top;
    }
    return tops;
}

bool startsLow(const PageFill& fill, double top, PageMaking making, const StructureParameters::PageSetup& parameters) {
    const double least = making == PageMaking::Program ? parameters.lowStart : parameters.sameEdge;
    return !fill.isEmpty && !fill.isSplit && fill.startTop > top + least + fill.topSlack;
}

} // namespace orvane::layout
