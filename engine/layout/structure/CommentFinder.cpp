#include "layout/structure/CommentFinder.h"

#include "layout/structure/DraftWalk.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::layout {
namespace {

using pdf::Annotation;
using pdf::AnnotationKind;

/// What a free text says stands on the page.
bool isComment(const Annotation& annotation) {
    return annotation.kind != AnnotationKind::FreeText && annotation.kind != AnnotationKind::Other &&
           annotation.contents.find_first_not_of(" \t\r\n") != std::string::npos;
}

/// Behind the last word that is marked; of a note the place where its sign points.
Point placeOf(const Annotation& annotation) {
    if (annotation.quads.empty())
        return {annotation.box.left, annotation.box.centerY()};
    const Rect& last = annotation.quads.back();
    return {last.right, last.centerY()};
}

double distance(Point p, const Rect& box) {
    const double x = std::max({box.left - p.x, p.x - box.right, 0.0});
    const double y = std::max({box.top - p.y, p.y - box.bottom, 0.0});
    return std::hypot(x, y);
}

/// The boxes of the spans of each page.
std::vector<std::vector<Rect>> spansOfPages(const DocumentDraft& draft) {
    std::vector<std::vector<Rect>> spans(draft.pages.size());
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                for (const Word& word : line.words)
                    for (const Span& span : word.spans)
                        spans[piece.page].push_back(span.box);
    });
    return spans;
}

/// Requires: `boxes` is not empty.
const Rect& nearest(const std::vector<Rect>& boxes, Point place) {
    return *std::min_element(boxes.begin(), boxes.end(),
                             [place](const Rect& a, const Rect& b) { return distance(place, a) < distance(place, b); });
}

} // namespace

void findComments(DocumentDraft& draft, Diagnostics& diagnostics) {
    const std::vector<std::vector<Rect>> spans = spansOfPages(draft);
    for (std::size_t page = 0; page < draft.pages.size(); ++page) {
        for (const Annotation& annotation : draft.pages[page].annotations) {
            if (!isComment(annotation))
                continue;
            if (!spans[page].empty())
                draft.comments.push_back({page, nearest(spans[page], placeOf(annotation)), annotation});
            else
                diagnostics.add(DiagnosticKind::StructureIgnored, draft.pages[page].number,
                                "a comment on a page without text was left out", annotation.box);
        }
    }
}

} // namespace orvane::layout
