#include "write/docx/ShapeGeometryXml.h"

#include "write/docx/DrawingXml.h"

#include <algorithm>

namespace orvane::write::docx {
namespace {

using namespace document;
using Verb = Shape::Verb;

bool isAt(const Shape::Segment& segment, Emu x, Emu y) {
    return segment.xy[0] == x && segment.xy[1] == y;
}

/// A line from one corner of its box to the opposite one.
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

/// An outline that runs round its box once, whichever way and wherever it starts.
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

void writePreset(XmlWriter& xml, const char* name) {
    const XmlElement geometry(xml, "a:prstGeom", {{"prst", name}});
    xml.leaf("a:avLst");
}

void writePoint(XmlWriter& xml, Emu x, Emu y) {
    xml.leaf("a:pt", {{"x", x.value}, {"y", y.value}});
}

void writeSegment(XmlWriter& xml, const Shape::Segment& segment) {
    const auto& xy = segment.xy;
    switch (segment.verb) {
    case Verb::Move: {
        const XmlElement move(xml, "a:moveTo");
        writePoint(xml, xy[0], xy[1]);
        return;
    }
    case Verb::Line: {
        const XmlElement line(xml, "a:lnTo");
        writePoint(xml, xy[0], xy[1]);
        return;
    }
    case Verb::Curve: {
        const XmlElement curve(xml, "a:cubicBezTo");
        for (std::size_t i = 0; i < xy.size(); i += 2)
            writePoint(xml, xy[i], xy[i + 1]);
        return;
    }
    case Verb::Close:
        xml.leaf("a:close");
        return;
    }
}

void writePath(XmlWriter& xml, const Shape& shape) {
    const XmlElement geometry(xml, "a:custGeom");
    for (const char* list : {"a:avLst", "a:gdLst", "a:ahLst", "a:cxnLst"})
        xml.leaf(list);
    xml.leaf("a:rect", {{"l", "0"}, {"t", "0"}, {"r", "r"}, {"b", "b"}});
    const XmlElement paths(xml, "a:pathLst");
    const XmlElement path(xml, "a:path", {{"w", drawingLength(shape.width)}, {"h", drawingLength(shape.height)}});
    if (!shape.segments.empty() && shape.segments.front().verb != Verb::Move)
        writeSegment(xml, {Verb::Move, {}});
    for (const Shape::Segment& segment : shape.segments)
        writeSegment(xml, segment);
}

} // namespace

void writeShapeGeometry(XmlWriter& xml, const Shape& shape) {
    Transform transform{shape.x, shape.y, shape.width, shape.height};
    if (isDiagonal(shape)) {
        // The word processor's line falls from left to right; the other diagonal is its mirror image.
        const Shape::Segment& from = shape.segments[0];
        const Shape::Segment& to = shape.segments[1];
        transform.isMirroredHorizontally = from.xy[0] > to.xy[0];
        transform.isMirroredVertically = from.xy[1] > to.xy[1];
        writeTransform(xml, transform);
        writePreset(xml, "line");
        return;
    }
    writeTransform(xml, transform);
    if (isBox(shape))
        writePreset(xml, "rect");
    else
        writePath(xml, shape);
}

} // namespace orvane::write::docx
