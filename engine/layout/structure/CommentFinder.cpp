#include "layout/structure/CommentFinder.h"

#include "layout/structure/DraftWalk.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

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

/// The span of the page's text that is next to the place.
std::optional<Rect> nearestSpan(const DocumentDraft& draft, std::size_t page, Point place) {
    std::optional<Rect> nearest;
    double least = std::numeric_limits<double>::max();
    forEachParagraph(draft.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces) {
            if (piece.page != page)
                continue;
            for (const Line& line : piece.text.lines)
                for (const Word& word : line.words)
                    for (const Span& span : word.spans)
                        if (const double d = distance(place, span.box); d < least) {
                            least = d;
                            nearest = span.box;
                        }
        }
    });
    return nearest;
}

} // namespace

void findComments(DocumentDraft& draft, Diagnostics& diagnostics) {
    for (std::size_t page = 0; page < draft.pages.size(); ++page) {
        for (const Annotation& annotation : draft.pages[page].annotations) {
            if (!isComment(annotation))
                continue;
            if (const auto box = nearestSpan(draft, page, placeOf(annotation)))
                draft.comments.push_back({page, *box, annotation});
            else
                diagnostics.add(DiagnosticKind::StructureIgnored, draft.pages[page].number,
                                "a comment on a page without text was left out", annotation.box);
        }
    }
}

} // namespace orvane::layout
