#include "layout/Layout.h"

#include "base/Failure.h"
#include "layout/DocumentAnalyser.h"
#include "layout/assembly/ContinuousDocument.h"
#include "layout/assembly/DocumentAssembler.h"
#include "layout/assembly/PlainTextDocument.h"
#include "layout/formulas/FormulaFinder.h"
#include "layout/graphics/PageColor.h"
#include "layout/graphics/ScannedPages.h"
#include "layout/page/FacingPages.h"
#include "layout/page/FreeDrawings.h"
#include "layout/page/MarginNumbers.h"
#include "layout/page/PageLayouter.h"
#include "layout/page/TurnedPages.h"
#include "layout/paragraphs/DropCaps.h"
#include "layout/paragraphs/ParagraphBorders.h"
#include "layout/running/RunningHeads.h"
#include "layout/structure/AddressLinks.h"
#include "layout/structure/CommentFinder.h"
#include "layout/structure/ContentsFinder.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/structure/FieldLines.h"
#include "layout/structure/HandBreaks.h"
#include "layout/structure/HeadingFinder.h"
#include "layout/structure/ListFinder.h"
#include "layout/structure/NoteCounter.h"
#include "layout/structure/NoteFinder.h"
#include "layout/structure/NoteMaker.h"
#include "layout/structure/ParagraphJoiner.h"
#include "layout/structure/SectionMaker.h"
#include "layout/structure/TableJoiner.h"
#include "layout/text/Line.h"
#include "layout/truepage/TruePageDocument.h"

#include <algorithm>
#include <iterator>

namespace orvane::layout {
namespace {

/// Takes the figures off the page; what stands within drawings stays as text.
void removeFigures(PageText& page) {
    std::vector<Line> words;
    for (Figure& figure : page.figures)
        std::move(figure.labels.begin(), figure.labels.end(), std::back_inserter(words));
    page.figures.clear();
    addLines(page, std::move(words));
}

/// What the mode keeps of the flowing document.
document::Document inMode(LayoutMode mode, document::Document flowing) {
    switch (mode) {
    case LayoutMode::Flowing:
    case LayoutMode::TruePage:
        return flowing;
    case LayoutMode::Continuous:
        return continuousDocument(std::move(flowing));
    case LayoutMode::PlainText:
        return plainTextDocument(std::move(flowing));
    }
    return flowing;
}

std::vector<PageLayout> layoutPages(std::vector<PageText> pages, const DocumentContext& context,
                                    const LayoutParameters& parameters, const JobObserver& observer,
                                    Diagnostics& diagnostics) {
    std::vector<PageLayout> layouts;
    layouts.reserve(pages.size());
    std::vector<std::size_t> shapes;
    for (PageText& page : pages) {
        if (observer.isCancelled())
            throw Failure(FailureCode::Cancelled, "the job was cancelled", {page.number, 0});
        layouts.push_back(layoutPage(std::move(page), context, parameters, diagnostics));
        findParagraphBorders(layouts.back(), parameters.paragraphBorders);
        shapes.push_back(countFreeShapes(layouts.back(), parameters.freeDrawings));
    }
    const std::size_t mostShapes = mostFreeShapes(std::move(shapes), parameters.freeDrawings);
    for (PageLayout& layout : layouts)
        drawFreeRules(layout, mostShapes, parameters);
    return layouts;
}

} // namespace

document::Document layoutDocument(std::vector<PageText> pages, const DocumentFacts& facts, const LayoutRequest& request,
                                  const LayoutParameters& parameters, const JobObserver& observer,
                                  Diagnostics& diagnostics) {
    if (request.removeImages)
        for (PageText& page : pages)
            removeFigures(page);
    if (request.mode == LayoutMode::TruePage || request.removeImages)
        for (PageText& page : pages)
            restoreFormulaLines(page, request.mode == LayoutMode::TruePage ? RestoredFormulas::All
                                                                           : RestoredFormulas::Painted);
    if (request.mode == LayoutMode::TruePage) {
        for (PageText& page : pages)
            partDropCaps(page);
        return truePageDocument(std::move(pages), facts, request, parameters, observer, diagnostics);
    }
    const std::optional<Color> pageColor = takePageColor(pages, parameters.pageColor);
    if (request.mode == LayoutMode::Flowing)
        for (PageText& page : pages)
            partTextFromScan(page, parameters, diagnostics);
    for (PageText& page : pages)
        turnUpright(page, parameters.turnedText);
    const std::optional<document::LineNumbers> lineNumbers = takeLineNumbers(pages, parameters.lineNumbering);
    const bool areMirrored = alignFacingPages(pages, parameters.facingPages);
    const std::vector<PageRunningHeads> heads = takeRunningHeads(pages, parameters);
    DocumentContext context = analyseDocument(pages, parameters);
    context.making = pageMakingOf(facts.metadata, context.division);
    FoundNotes notes = takeNotes(pages, context, parameters);
    DocumentDraft draft = buildDraft(layoutPages(std::move(pages), context, parameters, observer, diagnostics));
    joinFieldLines(draft, parameters.textBoxes);
    draft.hasMirroredMargins = areMirrored;
    draft.lineNumbers = lineNumbers;
    draft.noteAreas = notes.areas;
    joinParagraphs(draft, context, parameters);
    joinTables(draft, context, parameters);
    makeNotes(draft, std::move(notes), context, parameters, diagnostics);
    findContents(draft, parameters);
    findHeadings(draft, facts, context, parameters, diagnostics);
    joinLinesEndedByHand(draft, context, parameters);
    makeSections(draft, heads, context, parameters, diagnostics);
    countNotes(draft);
    findLists(draft, parameters);
    linkPrintedAddresses(draft);
    findComments(draft, diagnostics);
    document::Document document = assembleDocument(std::move(draft), context, facts, request, parameters, diagnostics);
    document.pageColor = pageColor;
    return inMode(request.mode, std::move(document));
}

} // namespace orvane::layout
