#include "layout/graphics/AlikeShapes.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

using document::Shape;

struct Extent {
    std::int64_t left = 0, top = 0, right = 0, bottom = 0;

    bool meets(const Extent& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    void unite(const Extent& other) {
        left = std::min(left, other.left);
        top = std::min(top, other.top);
        right = std::max(right, other.right);
        bottom = std::max(bottom, other.bottom);
    }
};

Extent extentOf(const Shape& shape) {
    // A line takes its width all round.
    const std::int64_t half = shape.line ? shape.line->width.value / 2 + 1 : 0;
    return {shape.x.value - half, shape.y.value - half, shape.x.value + shape.width.value + half,
            shape.y.value + shape.height.value + half};
}

bool areAlike(const Shape& a, const Shape& b) {
    const bool haveSameLine =
        a.line.has_value() == b.line.has_value() &&
        (!a.line || (a.line->color == b.line->color && a.line->width == b.line->width && a.line->kind == b.line->kind));
    return haveSameLine && a.fill == b.fill && a.opacity == b.opacity && !a.gradient && !b.gradient;
}

/// Shapes of one look, in one.
class Alike {
public:
    explicit Alike(Shape shape)
        : m_members{extentOf(shape)}
        , m_extent(m_members.front())
        , m_shape(std::move(shape)) {}

    const Shape& look() const { return m_shape; }

    bool meets(const Extent& extent) const {
        return m_extent.meets(extent) &&
               std::any_of(m_members.begin(), m_members.end(), [&](const Extent& own) { return own.meets(extent); });
    }

    bool hasRoomFor(const Shape& shape, std::size_t mostSegments) const {
        return m_shape.segments.size() + shape.segments.size() <= mostSegments;
    }

    void add(const Shape& shape, const Extent& extent) {
        m_members.push_back(extent);
        m_extent.unite(extent);
        const Emu left = std::min(m_shape.x, shape.x), top = std::min(m_shape.y, shape.y);
        const Emu right = std::max(m_shape.x + m_shape.width, shape.x + shape.width);
        const Emu bottom = std::max(m_shape.y + m_shape.height, shape.y + shape.height);
        shift(m_shape.segments.begin(), m_shape.segments.end(), m_shape.x - left, m_shape.y - top);
        m_shape.segments.insert(m_shape.segments.end(), shape.segments.begin(), shape.segments.end());
        shift(m_shape.segments.end() - static_cast<std::ptrdiff_t>(shape.segments.size()), m_shape.segments.end(),
              shape.x - left, shape.y - top);
        m_shape.x = left;
        m_shape.y = top;
        m_shape.width = right - left;
        m_shape.height = bottom - top;
    }

    Shape take() { return std::move(m_shape); }

private:
    using Segments = std::vector<Shape::Segment>::iterator;
    static void shift(Segments first, Segments last, Emu x, Emu y) {
        if (x == Emu() && y == Emu())
            return;
        for (; first != last; ++first)
            for (std::size_t i = 0; i < first->xy.size(); i += 2) {
                first->xy[i] = first->xy[i] + x;
                first->xy[i + 1] = first->xy[i + 1] + y;
            }
    }

    std::vector<Extent> m_members;
    Extent m_extent;
    Shape m_shape;
};

/// What the shape can be painted together with, without coming below anything that it was painted over.
Alike* hostOf(const Shape& shape, const Extent& extent, std::vector<Alike>& alike,
              const GraphicsParameters::Shapes& parameters) {
    std::size_t looks = 0;
    for (auto other = alike.rbegin(); other != alike.rend() && looks < parameters.looksBack; ++other, ++looks) {
        const bool isSame = areAlike(other->look(), shape);
        const bool hasRoom = isSame && other->hasRoomFor(shape, parameters.mostSegments);
        const bool isSolid = shape.opacity >= 1;
        if (hasRoom && isSolid && !shape.fill)
            return &*other;
        // Outlines that cover each other cut holes into a fill.
        const bool isMet = other->meets(extent);
        if (hasRoom && !isMet)
            return &*other;
        if (isMet && !(isSame && isSolid))
            return nullptr;
    }
    return nullptr;
}

} // namespace

std::vector<Shape> joinAlike(std::vector<Shape> shapes, const GraphicsParameters::Shapes& parameters) {
    std::vector<Alike> alike;
    for (Shape& shape : shapes) {
        const Extent extent = extentOf(shape);
        if (Alike* host = hostOf(shape, extent, alike, parameters))
            host->add(shape, extent);
        else
            alike.emplace_back(std::move(shape));
    }
    std::vector<Shape> joined;
    joined.reserve(alike.size());
    for (Alike& look : alike)
        joined.push_back(look.take());
    return joined;
}

} // namespace orvane::layout
