#include "layout/graphics/AnnotationFigures.h"

#include "layout/graphics/ShapeMaker.h"
#include "layout/text/Line.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

using pdf::Annotation;
using pdf::AnnotationKind;
using pdf::Glyph;
using pdf::Visibility;

template<typename Item>
bool isOf(const Annotation& annotation, const Item& item) {
    return item.paintOrder >= annotation.paintedFrom && item.paintOrder < annotation.paintedTo;
}

/// Lines that lead to a place on the page are written to be filled in.
bool isLetter(const Glyph& glyph) {
    return glyph.visibility == Visibility::Visible &&
           std::any_of(glyph.unicode.begin(), glyph.unicode.end(), [](char32_t c) {
               return c > U' ' && c != U'.' && c != U'_' && c != U'\u00A0' && c != U'\u2026';
           });
}

/// Level and upright lines and boxes are underlines, frames and grounds of the text, be they drawn by hand.
bool isRuling(const pdf::Path& path) {
    Point at;
    return std::all_of(path.segments.begin(), path.segments.end(), [&](const pdf::PathSegment& segment) {
        const Point from = std::exchange(at, segment.to);
        return segment.verb == pdf::PathVerb::Move || segment.verb == pdf::PathVerb::Close ||
               (segment.verb == pdf::PathVerb::Line && (from.x == segment.to.x || from.y == segment.to.y));
    });
}

Rect seenBox(const pdf::Path& path) {
    const double half = path.stroke ? path.stroke->width / 2 : 0;
    return path.box.inflated(half).intersected(path.clip);
}

/// Around all that the annotation paints.
Rect paintedBox(const pdf::PageContent& content) {
    Rect box;
    for (const pdf::Path& path : content.paths)
        if (path.visibility == Visibility::Visible)
            box = box.united(seenBox(path));
    for (const pdf::Picture& picture : content.pictures)
        if (picture.visibility == Visibility::Visible)
            box = box.united(picture.box.intersected(picture.clip));
    for (const Glyph& glyph : content.glyphs)
        if (glyph.visibility == Visibility::Visible)
            box = box.united(glyph.box);
    return box.intersected({0, 0, content.width, content.height});
}

template<typename Item>
std::vector<Item> partOf(const Annotation& annotation, const std::vector<Item>& items) {
    std::vector<Item> part;
    std::copy_if(items.begin(), items.end(), std::back_inserter(part),
                 [&](const Item& item) { return isOf(annotation, item); });
    return part;
}

pdf::PageContent contentOf(const Annotation& annotation, const pdf::PageContent& page) {
    pdf::PageContent content;
    content.number = page.number;
    content.width = page.width;
    content.height = page.height;
    content.rotation = page.rotation;
    content.fonts = page.fonts;
    content.marks = page.marks;
    content.glyphs = partOf(annotation, page.glyphs);
    content.paths = partOf(annotation, page.paths);
    content.pictures = partOf(annotation, page.pictures);
    return content;
}

bool mayLieOverText(const Annotation& annotation, const pdf::PageContent& content) {
    switch (annotation.kind) {
    case AnnotationKind::FreeText:
    case AnnotationKind::Stamp:
    case AnnotationKind::Ink:
        return true;
    case AnnotationKind::Shape:
        return !std::all_of(content.paths.begin(), content.paths.end(), isRuling);
    default:
        return false;
    }
}

bool liesOverText(const Annotation& annotation, const Rect& box, const pdf::PageContent& page,
                  const GraphicsParameters::Annotations& parameters) {
    const auto covered = std::count_if(page.glyphs.begin(), page.glyphs.end(), [&](const Glyph& glyph) {
        return !isOf(annotation, glyph) && isLetter(glyph) &&
               glyph.box.intersected(box).area() >= parameters.coveredShare * glyph.box.area();
    });
    return static_cast<std::size_t>(covered) >= parameters.fewestCovered;
}

bool hasTurnedText(const pdf::PageContent& content) {
    return std::any_of(content.glyphs.begin(), content.glyphs.end(),
                       [](const Glyph& glyph) { return glyph.angle != 0 && glyph.visibility == Visibility::Visible; });
}

template<typename Item>
void drop(const Annotation& annotation, std::vector<Item>& items) {
    std::erase_if(items, [&](const Item& item) { return isOf(annotation, item); });
}

} // namespace

std::vector<OverlaidAnnotation> takeOverlaidAnnotations(pdf::PageContent& page,
                                                        const GraphicsParameters::Annotations& parameters) {
    std::vector<OverlaidAnnotation> overlaid;
    for (const Annotation& annotation : page.annotations) {
        if (annotation.paintedFrom == annotation.paintedTo)
            continue;
        pdf::PageContent content = contentOf(annotation, page);
        const Rect box = paintedBox(content);
        if (box.isEmpty() || !mayLieOverText(annotation, content) || !liesOverText(annotation, box, page, parameters))
            continue;
        drop(annotation, page.glyphs);
        drop(annotation, page.paths);
        drop(annotation, page.pictures);
        overlaid.push_back({annotation, std::move(content)});
    }
    return overlaid;
}

Figure figureOf(const OverlaidAnnotation& overlaid, std::vector<Line> lines, const GraphicsParameters& parameters) {
    const pdf::PageContent& content = overlaid.content;
    Figure figure;
    figure.box = paintedBox(content);
    figure.isBackground = figure.isForeground = true;
    figure.paintOrder = overlaid.annotation.paintedFrom;
    figure.annotation = overlaid.annotation.number;
    figure.alternateText = overlaid.annotation.contents;
    figure.labels = std::move(lines);
    if (figure.alternateText.empty() && !figure.labels.empty())
        figure.alternateText = textOf(figure.labels.front());
    figure.paths.resize(content.paths.size());
    std::iota(figure.paths.begin(), figure.paths.end(), std::size_t{0});
    if (content.paths.empty() && content.pictures.empty() && !hasTurnedText(content)) {
        figure.drawing = document::Drawing{}; // nothing but its text is there
        return figure;
    }
    // Turned words stand in no text box.
    const bool isTurned = hasTurnedText(content);
    std::optional<ShapedDrawing> shaped = isTurned ? std::nullopt : shapesOf(figure, content, parameters);
    if (shaped) {
        figure.drawing = std::move(shaped->drawing);
        figure.box = shaped->box;
        return figure;
    }
    figure.needsPainting = true;
    // The words of a stamp are part of how it looks.
    figure.showsLabels = isTurned || overlaid.annotation.kind == AnnotationKind::Stamp;
    return figure;
}

} // namespace orvane::layout
