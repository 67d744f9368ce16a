#include "write/ShapeOutline.h"

namespace orvane::write {

using namespace document;
using Verb = Shape::Verb;

namespace {

bool isAt(const Shape::Segment& segment, Emu x, Emu y) {
    return segment.xy[0] == x && segment.xy[1] == y;
}

} // namespace

bool isDiagonal(const Shape& shape) {
    if (shape.segments.size() != 2 || shape.segments[0].verb != Verb::Move || shape.segments[1].verb != Verb::Line)
        return false;
    const auto isCorner = [&](const Shape::Segment& s) {
        return (s.xy[0] == Emu(0) || s.xy[0] == shape.width) && (s.xy[1] == Emu(0) || s.xy[1] == shape.height);
    };
    const Shape::Segment& a = shape.segments[0];
    const Shape::Segment& b = shape.segments[1];
    return isCorner(a) && isCorner(b) && (shape.width == Emu(0) || a.xy[0] != b.xy[0]) &&
           (shape.height == Emu(0) || a.xy[1] != b.xy[1]);
}

bool isBox(const Shape& shape) {
    const auto& segments = shape.segments;
    if (segments.size() < 5 || segments.size() > 6 || segments[0].verb != Verb::Move)
        return false;
    const bool hasClose = segments.back().verb == Verb::Close;
    const std::size_t lines = segments.size() - 1 - (hasClose ? 1 : 0);
    const bool returns = lines == 4 && isAt(segments[4], segments[0].xy[0], segments[0].xy[1]);
    if (!(lines == 3 && hasClose) && !returns)
        return false;
    bool hasCorner[2][2] = {};
    for (std::size_t i = 0; i < 4; ++i) {
        const Shape::Segment& segment = segments[i];
        const bool isRight = segment.xy[0] == shape.width;
        const bool isBottom = segment.xy[1] == shape.height;
        if ((i > 0 && segment.verb != Verb::Line) || (!isRight && segment.xy[0] != Emu(0)) ||
            (!isBottom && segment.xy[1] != Emu(0)))
            return false;
        // Opposite corners in a row would cross the box.
        const Shape::Segment& before = segments[i == 0 ? 3 : i - 1];
        if (segment.xy[0] != before.xy[0] && segment.xy[1] != before.xy[1])
            return false;
        hasCorner[isRight][isBottom] = true;
    }
    return hasCorner[0][0] && hasCorner[0][1] && hasCorner[1][0] && hasCorner[1][1];
}

bool isSingleShape(const Drawing& drawing) {
    if (drawing.shapes.size() != 1)
        return false;
    const Shape& shape = drawing.shapes.front();
    return shape.x == Emu(0) && shape.y == Emu(0) && shape.width == drawing.width && shape.height == drawing.height;
}

} // namespace orvane::write
