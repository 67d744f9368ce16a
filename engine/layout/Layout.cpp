#include "layout/Layout.h"

#include "base/Failure.h"
#include "layout/DocumentAnalyser.h"
#include "layout/assembly/DocumentAssembler.h"
#include "layout/page/PageLayouter.h"
#include "layout/running/RunningHeads.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/structure/HeadingFinder.h"
#include "layout/structure/ListFinder.h"
#include "layout/structure/ParagraphJoiner.h"
#include "layout/structure/SectionMaker.h"

namespace orvane::layout {
namespace {

void checkMode(LayoutMode mode) {
    switch (mode) {
    case LayoutMode::Flowing:
        return;
    case LayoutMode::TruePage:
        throw Failure(FailureCode::NotSupported, "the true page layout is not supported");
    case LayoutMode::Continuous:
        throw Failure(FailureCode::NotSupported, "the continuous layout is not supported");
    case LayoutMode::PlainText:
        throw Failure(FailureCode::NotSupported, "the plain text layout is not supported");
    }
}

std::vector<PageLayout> layoutPages(std::vector<PageText> pages, const DocumentContext& context,
                                    const LayoutParameters& parameters, const JobObserver& observer,
                                    Diagnostics& diagnostics) {
    std::vector<PageLayout> layouts;
    layouts.reserve(pages.size());
    for (PageText& page : pages) {
        if (observer.isCancelled())
            throw Failure(FailureCode::Cancelled, "the job was cancelled", {page.number, 0});
        layouts.push_back(layoutPage(std::move(page), context, parameters, diagnostics));
    }
    return layouts;
}

} // namespace

document::Document layoutDocument(std::vector<PageText> pages, const DocumentFacts& facts, const LayoutRequest& request,
                                  const LayoutParameters& parameters, const JobObserver& observer,
                                  Diagnostics& diagnostics) {
    checkMode(request.mode);
    if (request.removeImages)
        for (PageText& page : pages)
            page.figures.clear();
    const std::vector<PageRunningHeads> heads = takeRunningHeads(pages, parameters);
    const DocumentContext context = analyseDocument(pages, parameters);
    DocumentDraft draft = buildDraft(layoutPages(std::move(pages), context, parameters, observer, diagnostics));
    joinParagraphs(draft, context, parameters);
    findHeadings(draft, facts, context, parameters, diagnostics);
    makeSections(draft, heads, context, parameters, diagnostics);
    findLists(draft, parameters);
    return assembleDocument(std::move(draft), context, facts, request, parameters, diagnostics);
}

} // namespace orvane::layout
