#include "layout/Layout.h"
#include "layout/formulas/FormulaFinder.h"
#include "layout/graphics/AnnotationFigures.h"
#include "layout/graphics/FigureFinder.h"
#include "layout/graphics/RuleFinder.h"
#include "layout/text/ClusterBuilder.h"
#include "layout/text/FieldSigns.h"
#include "layout/text/FontCharacters.h"
#include "layout/text/FrameFinder.h"
#include "layout/text/GlyphFilter.h"
#include "layout/text/LineBuilder.h"
#include "layout/text/MarkupReader.h"
#include "layout/text/RecognisedWidths.h"
#include "layout/text/RowBuilder.h"
#include "layout/text/SpanBuilder.h"
#include "layout/text/TextDecoration.h"
#include "layout/text/WordBuilder.h"

#include <algorithm>
#include <limits>

namespace orvane::layout {
namespace {

/// What clip paths cut off. Rules and grounds mean nothing to it: nobody saw it beside them.
std::vector<Line> readClippedLines(const pdf::PageContent& page, const GlyphSelection& selection,
                                   const LayoutParameters& parameters, Diagnostics& diagnostics) {
    if (selection.glyphs.empty())
        return {};
    const FrameSelection frames = findFrames(page, selection, parameters, diagnostics);
    std::vector<TextRow> rows =
        buildRows(buildClusters(page, selection, frames, parameters, diagnostics), parameters, diagnostics);
    std::vector<TextRow> lines = buildLines(findWordGaps(std::move(rows), parameters, diagnostics), frames.frames, {},
                                            {}, parameters, diagnostics);
    return finishLines(std::move(lines), frames.frames, page, parameters, diagnostics);
}

/// A reader's mark is meant for what it covers, wherever it begins and ends.
TextParameters forMarkup(TextParameters parameters) {
    parameters.decoration.slack = std::numeric_limits<double>::infinity();
    return parameters;
}

PageText readText(const pdf::PageContent& page, const LayoutParameters& parameters, Diagnostics& diagnostics) {
    PageText text;
    text.number = page.number;
    text.width = page.width;
    text.height = page.height;
    text.fonts = page.fonts;
    text.links = page.links;
    text.annotations = page.annotations;
    text.fields = page.fields;
    text.marks = page.marks;

    RuledPage ruled = findRules(page, parameters, diagnostics);
    text.rules = std::move(ruled.rules);
    text.grounds = std::move(ruled.grounds);

    const GlyphSelection selection = filterGlyphs(page, parameters, diagnostics);
    text.isScanned = selection.isScanned;
    text.clippedLines = readClippedLines(page, clippedGlyphs(page, selection, parameters), parameters, diagnostics);
    const FrameSelection frames = findFrames(page, selection, parameters, diagnostics);
    std::vector<Cluster> clusters = buildClusters(page, selection, frames, parameters, diagnostics);
    std::vector<TextRow> rows = buildRows(std::move(clusters), parameters, diagnostics);
    if (selection.isScanned)
        fillRecognisedWidths(rows, parameters.recognition);
    rows = findWordGaps(std::move(rows), parameters, diagnostics);
    std::vector<TextRow> lines =
        buildLines(std::move(rows), frames.frames, text.rules, text.grounds, parameters, diagnostics);
    decorateText(lines, frames.frames, text.rules, text.grounds, text.links, parameters, diagnostics);
    TextMarkup markup = markupOf(page.annotations, parameters.markup);
    decorateText(lines, frames.frames, markup.rules, markup.grounds, {}, forMarkup(parameters), diagnostics);
    markFields(lines, frames.frames, page.fields, parameters);
    text.lines = finishLines(std::move(lines), frames.frames, page, parameters, diagnostics);

    findFigures(page, ruled.isTaken, text, parameters, diagnostics);
    findFormulas(page, selection, text, parameters);
    return text;
}

/// The text of what lies over the page, which has nothing to do with the text below.
std::vector<Line> linesOf(const OverlaidAnnotation& overlaid, const LayoutParameters& parameters,
                          Diagnostics& diagnostics) {
    PageText text = readText(overlaid.content, parameters, diagnostics);
    restoreFormulaLines(text, RestoredFormulas::All);
    return std::move(text.lines);
}

PageText readFilled(const pdf::PageContent& page, const LayoutParameters& parameters, Diagnostics& diagnostics) {
    const bool isForm = std::any_of(page.fields.begin(), page.fields.end(), isFilledIn);
    return readText(isForm ? withFieldSigns(page, parameters.fields) : page, parameters, diagnostics);
}

/// The page without the annotations that lie over its text, and these in front of it.
PageText readOverlaid(pdf::PageContent page, const LayoutParameters& parameters, Diagnostics& diagnostics) {
    const std::vector<OverlaidAnnotation> overlaid = takeOverlaidAnnotations(page, parameters.annotationFigures);
    PageText text = readFilled(page, parameters, diagnostics);
    for (const OverlaidAnnotation& annotation : overlaid)
        text.figures.push_back(figureOf(annotation, linesOf(annotation, parameters, diagnostics), parameters));
    return text;
}

} // namespace

PageText readPageText(const pdf::PageContent& page, const LayoutParameters& parameters, Diagnostics& diagnostics) {
    PageText text = page.annotations.empty() ? readFilled(page, parameters, diagnostics)
                                             : readOverlaid(page, parameters, diagnostics);
    text.characters = charactersOf(page);
    return text;
}

} // namespace orvane::layout
