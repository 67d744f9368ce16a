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

/// The lower edge: below all that stands on the pages, above where the next page's first line would have had room.
double findBottom(const std::vector<PageFill>& fills, std::size_t firstPage, std::size_t lastPage, double pageHeight,
                  double top, const StructureParameters::PageSetup& limits) {
    double lowest = 0;
    for (std::size_t i = firstPage; i <= lastPage; ++i)
        lowest = std::max(lowest, fills[i].bottom);
    if (lowest <= top)
        return pageHeight - limits.usualMargin;
    double highest = pageHeight;
    for (std::size_t i = firstPage; i < lastPage; ++i) {
        const double wouldEnd = fills[i].bottom + fills[i + 1].gap + fills[i + 1].need;
        if (!fills[i].isEmpty && !fills[i + 1].isEmpty && wouldEnd > lowest)
            highest = std::min(highest, wouldEnd);
    }
    const double margin = tidyLength(pageHeight - highest + limits.breakSlack, pageHeight - lowest - limits.breakSlack,
                                     top, limits.breakSlack);
    return pageHeight - std::max(0.0, std::min(margin, pageHeight - lowest));
}

} // namespace

Rect findTextArea(const DocumentDraft& draft, const std::vector<PageFill>& fills, std::size_t firstPage,
                  std::size_t lastPage, const LayoutParameters& parameters) {
    const StructureParameters::PageSetup& limits = parameters.pageSetup;
    const TextEdges edges = findTextEdges(draft, firstPage, lastPage, parameters);
    const double top = findTop(fills, firstPage, lastPage, limits);
    const PageLayout& page = draft.pages[firstPage];
    const double bottom = findBottom(fills, firstPage, lastPage, page.height, top, limits);
    const auto tidy = [&](double margin) { return nearTidyLength(margin, limits.tidyTolerance); };
    return {tidy(edges.left), tidy(top), page.width - tidy(page.width - edges.right), bottom};
}

} // namespace orvane::layout
