#include "layout/structure/PageSetup.h"

#include "layout/structure/TextEdges.h"
#include "layout/support/TidyLength.h"

namespace orvane::layout {
TextArea findTextArea(const DocumentDraft& draft, const std::vector<PageFill>& fills, const RunningScheme& scheme,
                      double bottomMargin, const LayoutParameters& parameters) {
    const StructureParameters::PageSetup& limits = parameters.pageSetup;
    const auto tidy = [&](double margin) { return nearTidyLength(margin, limits.tidyTolerance); };
    const TextEdges edges = findTextEdges(draft, scheme.firstPage, scheme.lastPage, parameters);
    PageTops tops = findPageTops(fills, scheme, limits);
    const PageLayout& page = draft.pages[scheme.firstPage];
    tops.margin = tidy(tops.margin);
    return {{tidy(edges.left), tops.margin, page.width - tidy(page.width - edges.right), page.height - bottomMargin},
            {edges.left, edges.right},
            tops};
}

} // namespace orvane::layout
