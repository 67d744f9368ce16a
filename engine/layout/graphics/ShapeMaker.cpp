#include "layout/graphics/ShapeMaker.h"

#include "layout/graphics/GradientMaker.h"
#include "layout/graphics/PathPieces.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

using document::BorderKind;
using document::Drawing;
using document::Shape;
using pdf::PathVerb;

bool isPainted(const pdf::Path& path) {
    return path.visibility == pdf::Visibility::Visible &&
           ((path.fill && path.fill->opacity > 0) || (path.stroke && path.stroke->opacity > 0));
}

BorderKind kindOf(const std::vector<double>& dash, double width, double dotLength) {
    if (dash.empty())
        return BorderKind::Single;
    return dash.front() <= dotLength * width ? BorderKind::Dotted : BorderKind::Dashed;
}

class ShapeMaker {
public:
    ShapeMaker(const Figure& drawing, const pdf::PageContent& page, const GraphicsParameters& parameters)
        : m_source(drawing)
        , m_area(drawing.box)
        , m_reach(drawing.box.inflated(parameters.drawings.reach))
        , m_page(page)
        , m_limits(parameters.shapes)
        , m_gradients(parameters.gradients)
        , m_straightness(parameters.rules.straightness) {}

    std::optional<ShapedDrawing> make() {
        if (hasPicture())
            return std::nullopt;
        for (const std::size_t i : parts())
            if (isPainted(m_page.paths[i]) && !add(m_page.paths[i]))
                return std::nullopt;
        if (m_drawing.shapes.empty())
            return std::nullopt;
        // Word processors stretch a group until its shapes fill it, so they have to already.
        const Rect box = m_extent.isEmpty() ? m_area : m_extent;
        for (Shape& shape : m_drawing.shapes) {
            shape.x = shape.x - emuFromPoints(box.left);
            shape.y = shape.y - emuFromPoints(box.top);
        }
        m_drawing.width = emuFromPoints(box.width());
        m_drawing.height = emuFromPoints(box.height());
        return ShapedDrawing{std::move(m_drawing), box};
    }

private:
    /// The rules and grounds within a drawing are part of it; those over a background belong to the text there.
    std::vector<std::size_t> parts() const {
        std::vector<std::size_t> parts;
        if (m_source.isBackground) {
            parts = m_source.paths;
            std::sort(parts.begin(), parts.end());
            parts.erase(std::unique(parts.begin(), parts.end()), parts.end());
            return parts;
        }
        for (std::size_t i = 0; i < m_page.paths.size(); ++i)
            if (isWithin(m_page.paths[i]))
                parts.push_back(i);
        return parts;
    }

    bool isWithin(const pdf::Path& candidate) const {
        const Rect seen = candidate.box.intersected(candidate.clip);
        return seen.left <= seen.right && seen.top <= seen.bottom && m_reach.contains(seen);
    }

    bool hasPicture() const {
        return std::any_of(m_page.pictures.begin(), m_page.pictures.end(), [&](const pdf::Picture& picture) {
            const Rect seen = picture.box.intersected(picture.clip);
            return picture.visibility == pdf::Visibility::Visible && !seen.contains(m_area) && m_area.intersects(seen);
        });
    }

    /// False when the path does not look like a shape.
    bool add(const pdf::Path& path) {
        m_segmentCount += path.segments.size();
        if (path.isSimplified || m_segmentCount > m_limits.mostSegments ||
            m_drawing.shapes.size() >= m_limits.mostShapes)
            return false;
        if (path.clip.inflated(m_limits.cut).contains(path.box))
            return addShape(path, path.segments, path.box);
        // What is left of a filled rectangle is another one.
        const std::vector<Subpath> subpaths = takeApart(path, m_straightness);
        if (path.stroke || subpaths.size() != 1 || !subpaths.front().rectangle || subpaths.front().hasCurves)
            return false;
        const Rect box = path.box.intersected(path.clip);
        return addShape(path, outlineOf(box), box);
    }

    /// False when it is filled with what no shape can be filled with.
    bool addShape(const pdf::Path& path, const std::vector<pdf::PathSegment>& segments, const Rect& box) {
        Shape shape = shapeOf(path, segments, box);
        if (path.fill && path.fill->isPattern) {
            shape.gradient = gradientIn(box, path, m_gradients);
            if (!shape.gradient)
                return false;
        }
        add(std::move(shape), box);
        return true;
    }

    void add(Shape shape, const Rect& box) {
        // A level line has no height, and stretches the box all the same.
        m_extent = m_drawing.shapes.empty()
                       ? box
                       : Rect{std::min(m_extent.left, box.left), std::min(m_extent.top, box.top),
                              std::max(m_extent.right, box.right), std::max(m_extent.bottom, box.bottom)};
        m_drawing.shapes.push_back(std::move(shape));
    }

    static std::vector<pdf::PathSegment> outlineOf(const Rect& box) {
        return {{PathVerb::Move, {}, {}, {box.left, box.top}},
                {PathVerb::Line, {}, {}, {box.right, box.top}},
                {PathVerb::Line, {}, {}, {box.right, box.bottom}},
                {PathVerb::Line, {}, {}, {box.left, box.bottom}},
                {PathVerb::Close, {}, {}, {}}};
    }

    /// A shape in page space.
    Shape shapeOf(const pdf::Path& path, const std::vector<pdf::PathSegment>& segments, const Rect& box) const {
        Shape shape;
        shape.x = emuFromPoints(box.left);
        shape.y = emuFromPoints(box.top);
        shape.width = emuFromPoints(box.width());
        shape.height = emuFromPoints(box.height());
        for (const pdf::PathSegment& segment : segments)
            shape.segments.push_back(segmentOf(segment, box));
        if (path.fill)
            shape.fill = path.fill->color;
        if (path.stroke) {
            const double width = std::max(path.stroke->width, m_limits.thinnestLine);
            shape.line = document::ShapeLine{path.stroke->color, emuFromPoints(width),
                                             kindOf(path.stroke->dash, width, m_limits.dotLength)};
        }
        shape.opacity = path.fill ? path.fill->opacity : path.stroke->opacity;
        return shape;
    }

    static Shape::Segment segmentOf(const pdf::PathSegment& segment, const Rect& box) {
        const auto x = [&](Point p) { return emuFromPoints(p.x - box.left); };
        const auto y = [&](Point p) { return emuFromPoints(p.y - box.top); };
        switch (segment.verb) {
        case PathVerb::Move:
            return {Shape::Verb::Move, {x(segment.to), y(segment.to)}};
        case PathVerb::Line:
            return {Shape::Verb::Line, {x(segment.to), y(segment.to)}};
        case PathVerb::Curve:
            return {Shape::Verb::Curve,
                    {x(segment.control1), y(segment.control1), x(segment.control2), y(segment.control2), x(segment.to),
                     y(segment.to)}};
        case PathVerb::Close:
            break;
        }
        return {Shape::Verb::Close, {}};
    }

    const Figure& m_source;
    Rect m_area;
    Rect m_reach;
    const pdf::PageContent& m_page;
    const GraphicsParameters::Shapes& m_limits;
    const GraphicsParameters::Gradients& m_gradients;
    double m_straightness;
    Drawing m_drawing;
    Rect m_extent; ///< of the shapes
    std::size_t m_segmentCount = 0;
};

} // namespace

std::optional<ShapedDrawing> shapesOf(const Figure& drawing, const pdf::PageContent& page,
                                      const GraphicsParameters& parameters) {
    if (drawing.paths.empty() || drawing.picture.value != 0 || drawing.holdsPicture)
        return std::nullopt;
    return ShapeMaker(drawing, page, parameters).make();
}

} // namespace orvane::layout
