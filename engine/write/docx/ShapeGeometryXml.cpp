#include "write/docx/ShapeGeometryXml.h"

#include "write/ShapeOutline.h"
#include "write/docx/DrawingXml.h"

namespace orvane::write::docx {
namespace {

using namespace document;
using Verb = Shape::Verb;

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
