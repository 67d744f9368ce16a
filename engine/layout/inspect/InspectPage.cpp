#include "layout/inspect/InspectPage.h"

#include "layout/DocumentAnalyser.h"
#include "layout/page/PageLayouter.h"
#include "layout/running/RunningHeads.h"

#include <algorithm>

namespace orvane::layout {

std::string inspectPage(std::vector<PageText> pages, int number, InspectStage stage, const LayoutParameters& parameters,
                        Diagnostics& diagnostics) {
    const auto page =
        std::find_if(pages.begin(), pages.end(), [number](const PageText& text) { return text.number == number; });
    // The stages of a page alone show it whole, before the running heads are taken out.
    if (stage == InspectStage::Words || stage == InspectStage::Lines || stage == InspectStage::Figures)
        return drawStage(*page, nullptr, stage);
    takeRunningHeads(pages, parameters);
    const DocumentContext context = analyseDocument(pages, parameters);
    const PageLayout layout = layoutPage(*page, context, parameters, diagnostics);
    return drawStage(*page, &layout, stage);
}

} // namespace orvane::layout
