#include "layout/structure/PageSetup.h"

#include "layout/structure/TextEdges.h"
#include "layout/support/TidyLength.h"

#include <algorithm>
#include <optional>

namespace orvane::layout {
namespace {

/// Pages of one section with what was measured of them.
struct PageRange {
    const std::vector<PageFill>& fills;
    std::size_t firstPage;
    std::size_t lastPage;
    const PageTops& tops;
    const StructureParameters::PageSetup& limits;
};

enum class SpaceAbove : unsigned char { Nothing, Usual };

/// How high the lower edge may stand so that what starts the pages had no room on those before.
double highestBottom(const PageRange& range, double pageHeight, double lowest, SpaceAbove space) {
    const std::vector<PageFill>& fills = range.fills;
    double highest = pageHeight;
    for (std::size_t i = range.firstPage; i < range.lastPage; ++i) {
        if (startsLow(fills[i + 1], range.tops.of(i + 1), range.limits))
            continue; // by hand, whatever room there was
        const double gap = space == SpaceAbove::Usual ? fills[i + 1].gap : 0;
        const double wouldEnd = fills[i].bottom + gap + fills[i + 1].need;
        if (!fills[i].isEmpty && !fills[i + 1].isEmpty && wouldEnd > lowest)
            highest = std::min(highest, wouldEnd);
    }
    return highest;
}

/// The lower edge: below all that stands on the pages, above where the next page's first line would have had room.
double findBottom(const PageRange& range, double pageHeight) {
    double lowest = 0;
    for (std::size_t i = range.firstPage; i <= range.lastPage; ++i)
        lowest = std::max(lowest, range.fills[i].bottom);
    const double top = range.tops.margin;
    if (lowest <= top)
        return pageHeight - range.limits.usualMargin;
    const double most = pageHeight - lowest;
    const auto least = [&](SpaceAbove space) {
        return pageHeight - highestBottom(range, pageHeight, lowest, space) + range.limits.breakSlack;
    };
    // How much space there was above what starts a page is not seen; only where no margin that people type goes without
    // it is it taken to have been the usual one.
    const double strict = least(SpaceAbove::Nothing), slack = range.limits.breakSlack;
    std::optional<double> margin = tidyLengthWithin(strict, most - slack, top);
    if (!margin)
        margin = tidyLengthWithin(least(SpaceAbove::Usual), most - slack, top);
    // A margin that people type is believed to the hair.
    if (!margin)
        margin = tidyLengthWithin(strict - slack, strict, top);
    if (!margin)
        margin = tidyLength(strict, most - slack, top, slack);
    return pageHeight - std::max(0.0, std::min(*margin, most));
}

} // namespace

TextArea findTextArea(const DocumentDraft& draft, const std::vector<PageFill>& fills, const RunningScheme& scheme,
                      const LayoutParameters& parameters) {
    const StructureParameters::PageSetup& limits = parameters.pageSetup;
    const auto tidy = [&](double margin) { return nearTidyLength(margin, limits.tidyTolerance); };
    const TextEdges edges = findTextEdges(draft, scheme.firstPage, scheme.lastPage, parameters);
    PageTops tops = findPageTops(fills, scheme, limits);
    const PageLayout& page = draft.pages[scheme.firstPage];
    const double bottom = findBottom({fills, scheme.firstPage, scheme.lastPage, tops, limits}, page.height);
    tops.margin = tidy(tops.margin);
    return {{tidy(edges.left), tops.margin, page.width - tidy(page.width - edges.right), bottom},
            {edges.left, edges.right},
            tops};
}

} // namespace orvane::layout
