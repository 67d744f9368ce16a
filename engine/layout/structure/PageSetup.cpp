#include "layout/structure/PageSetup.h"

#include "layout/structure/TextEdges.h"
#include "layout/support/Tally.h"
#include "layout/support/TidyLength.h"

#include <algorithm>

namespace orvane::layout {
namespace {

double findTop(const std::vector<PageFill>& fills, std::size_t firstPage, std::size_t lastPage,
               const StructureParameters::PageSetup& limits) {
    std::vector<double> tops;
    for (std::size_t i = firstPage; i <= lastPage; ++i)
        if (!fills[i].isEmpty)
            tops.push_back(fills[i].top);
    if (tops.empty())
        return limits.usualMargin;
    const double least = *std::min_element(tops.begin(), tops.end());
    const double most = mostFrequent(tops, limits.sameEdge).value_or(least);
    // One page that starts higher than the others, with a picture for instance, does not move the margin of all.
    const auto agreeing =
        std::count_if(tops.begin(), tops.end(), [&](double top) { return top <= most + limits.sameEdge; });
    return std::max(0.0, agreeing > 1 ? most : least);
}

enum class SpaceAbove : unsigned char { Nothing, Usual };

/// How high the lower edge may stand so that what starts the pages had no room on those before.
double highestBottom(const std::vector<PageFill>& fills, std::size_t firstPage, std::size_t lastPage, double pageHeight,
                     double lowest, SpaceAbove space) {
    double highest = pageHeight;
    for (std::size_t i = firstPage; i < lastPage; ++i) {
        const double gap = space == SpaceAbove::Usual ? fills[i + 1].gap : 0;
        const double wouldEnd = fills[i].bottom + gap + fills[i + 1].need;
        if (!fills[i].isEmpty && !fills[i + 1].isEmpty && wouldEnd > lowest)
            highest = std::min(highest, wouldEnd);
    }
    return highest;
}

/// The lower edge: below all that stands on the pages, above where the next page's first line would have had room.
double findBottom(const std::vector<PageFill>& fills, std::size_t firstPage, std::size_t lastPage, double pageHeight,
                  double top, const StructureParameters::PageSetup& limits) {
    double lowest = 0;
    for (std::size_t i = firstPage; i <= lastPage; ++i)
        lowest = std::max(lowest, fills[i].bottom);
    if (lowest <= top)
        return pageHeight - limits.usualMargin;
    const double most = pageHeight - lowest;
    const auto least = [&](SpaceAbove space) {
        return pageHeight - highestBottom(fills, firstPage, lastPage, pageHeight, lowest, space) + limits.breakSlack;
    };
    // How much space there was above what starts a page is not seen; only where no margin that people type goes without
    // it is it taken to have been the usual one.
    const double strict = least(SpaceAbove::Nothing), slack = limits.breakSlack;
    double margin = tidyLength(strict, most - slack, top, slack);
    if (!tidyLengthWithin(strict, most - slack, top))
        margin = tidyLengthWithin(least(SpaceAbove::Usual), most - slack, top).value_or(margin);
    return pageHeight - std::max(0.0, std::min(margin, most));
}

} // namespace

TextArea findTextArea(const DocumentDraft& draft, const std::vector<PageFill>& fills, std::size_t firstPage,
                      std::size_t lastPage, const LayoutParameters& parameters) {
    const StructureParameters::PageSetup& limits = parameters.pageSetup;
    const TextEdges edges = findTextEdges(draft, firstPage, lastPage, parameters);
    const double top = findTop(fills, firstPage, lastPage, limits);
    const PageLayout& page = draft.pages[firstPage];
    const double bottom = findBottom(fills, firstPage, lastPage, page.height, top, limits);
    const auto tidy = [&](double margin) { return nearTidyLength(margin, limits.tidyTolerance); };
    return {{tidy(edges.left), tidy(top), page.width - tidy(page.width - edges.right), bottom},
            {edges.left, edges.right}};
}

} // namespace orvane::layout
