#include "write/rtf/ShapeRtf.h"

#include "write/ShapeOutline.h"
#include "write/StoredGradient.h"
#include "write/rtf/ShapeProperties.h"

#include <array>

#include <fmt/format.h>

namespace orvane::write::rtf {
namespace {

using namespace document;
using Verb = Shape::Verb;

// Source: [MS-ODRAW] 2.4.24 (MSOSPT), 2.4.8 (MSOSHAPEPATH), 2.2.48 (MSOPATHINFO).
constexpr int kFreeForm = 0;
constexpr int kRectangle = 1;
constexpr int kLine = 20;
constexpr int kComplexPath = 4;
constexpr int kMoveCode = 0x4000;
constexpr int kLineCode = 0x0001;
constexpr int kCurveCode = 0x2001;
constexpr int kCloseCode = 0x6001;
constexpr int kEndCode = 0x8000;
/// The size in bytes of a point and of a segment in the properties' lists.
constexpr int kPointSize = 8;
constexpr int kSegmentSize = 2;

/// A path as two lists of the format.
class PathLists {
public:
    explicit PathLists(const Shape& shape) {
        if (!shape.segments.empty() && shape.segments.front().verb != Verb::Move)
            add(kMoveCode, {Verb::Move, {}}, 1);
        for (const Shape::Segment& segment : shape.segments)
            add(segment);
        code(kEndCode);
    }

    std::string points() const { return fmt::format("{};{}{}", kPointSize, m_pointCount, m_points); }
    std::string segments() const { return fmt::format("{};{}{}", kSegmentSize, m_segmentCount, m_segments); }

private:
    void add(const Shape::Segment& segment) {
        switch (segment.verb) {
        case Verb::Move:
            m_start = segment;
            return add(kMoveCode, segment, 1);
        case Verb::Line:
            return add(kLineCode, segment, 1);
        case Verb::Curve:
            return add(kCurveCode, segment, 3);
        case Verb::Close:
            return close();
        }
    }

    /// The line back to the start is drawn too: LibreOffice passes over the code that closes an outline.
    void close() {
        if (m_last[0] != m_start.xy[0] || m_last[1] != m_start.xy[1])
            add(kLineCode, m_start, 1);
        code(kCloseCode);
    }

    void add(int segmentCode, const Shape::Segment& segment, std::size_t pairs) {
        code(segmentCode);
        m_last = {segment.xy[2 * pairs - 2], segment.xy[2 * pairs - 1]};
        for (std::size_t i = 0; i < pairs; ++i, ++m_pointCount)
            m_points += fmt::format(";({},{})", shapeLength(segment.xy[2 * i]), shapeLength(segment.xy[2 * i + 1]));
    }

    void code(int segmentCode) {
        m_segments += fmt::format(";{}", segmentCode);
        ++m_segmentCount;
    }

    Shape::Segment m_start; ///< of the open part of the outline
    std::array<Emu, 2> m_last{};
    std::string m_points;
    std::string m_segments;
    int m_pointCount = 0;
    int m_segmentCount = 0;
};

void writePath(RtfStream& rtf, const Shape& shape) {
    const PathLists lists(shape);
    writeShapeProperty(rtf, "shapeType", kFreeForm);
    writeShapeProperty(rtf, "geoLeft", 0);
    writeShapeProperty(rtf, "geoTop", 0);
    writeShapeProperty(rtf, "geoRight", shapeLength(shape.width));
    writeShapeProperty(rtf, "geoBottom", shapeLength(shape.height));
    writeShapeProperty(rtf, "shapePath", kComplexPath);
    // Misspelled by the format.
    writeShapeProperty(rtf, "pVerticies", lists.points());
    writeShapeProperty(rtf, "pSegmentInfo", lists.segments());
}

/// Straight lines and upright rectangles are the word processor's own, so that they can be edited as such. Its line
/// falls from left to right; the other diagonal is its mirror image, told by `flipH` and `flipV`.
void writeGeometry(RtfStream& rtf, const Shape& shape, const char* flipH, const char* flipV) {
    if (isDiagonal(shape)) {
        const Shape::Segment& from = shape.segments[0];
        const Shape::Segment& to = shape.segments[1];
        writeShapeProperty(rtf, "shapeType", kLine);
        if (from.xy[0] > to.xy[0])
            writeShapeProperty(rtf, flipH, 1);
        if (from.xy[1] > to.xy[1])
            writeShapeProperty(rtf, flipV, 1);
    } else if (isBox(shape)) {
        writeShapeProperty(rtf, "shapeType", kRectangle);
    } else {
        writePath(rtf, shape);
    }
}

void writeLook(RtfStream& rtf, const Shape& shape) {
    if (isStoredAsGradient(shape))
        writeGradient(rtf, *shape.gradient, shape.opacity);
    else
        writeFill(rtf, shape.fill, shape.opacity);
    writeOutlineLook(rtf, shape.line, shape.opacity);
}

void writeDescription(RtfStream& rtf, const Drawing& drawing) {
    if (!drawing.alternateText.empty())
        writeShapeProperty(rtf, "wzDescription", drawing.alternateText);
}

void writeSingleShape(Story& story, const Drawing& drawing, const Placement& placement) {
    RtfStream& rtf = story.rtf;
    const RtfGroup shape(rtf, "shp");
    const RtfDestination instance(rtf, "shpinst");
    writePlacement(story, placement, {drawing.width, drawing.height, 0});
    writeGeometry(rtf, drawing.shapes.front(), "fFlipH", "fFlipV");
    writeLook(rtf, drawing.shapes.front());
    writeDescription(rtf, drawing);
}

void writeMember(RtfStream& rtf, const Shape& shape) {
    const RtfGroup group(rtf, "shp");
    const RtfDestination instance(rtf, "shpinst");
    writeShapeProperty(rtf, "relLeft", shapeLength(shape.x));
    writeShapeProperty(rtf, "relTop", shapeLength(shape.y));
    writeShapeProperty(rtf, "relRight", shapeLength(shape.x + shape.width));
    writeShapeProperty(rtf, "relBottom", shapeLength(shape.y + shape.height));
    writeGeometry(rtf, shape, "fRelFlipH", "fRelFlipV");
    writeLook(rtf, shape);
}

/// Writes shapes in the coordinates of the drawing around them.
void writeGroup(Story& story, const Drawing& drawing) {
    RtfStream& rtf = story.rtf;
    writeShapeProperty(rtf, "groupLeft", 0);
    writeShapeProperty(rtf, "groupTop", 0);
    // A group without width or height would divide its shapes by nothing.
    writeShapeProperty(rtf, "groupRight", std::max<std::int64_t>(1, shapeLength(drawing.width)));
    writeShapeProperty(rtf, "groupBottom", std::max<std::int64_t>(1, shapeLength(drawing.height)));
    writeDescription(rtf, drawing);
    for (const Shape& shape : drawing.shapes)
        writeMember(rtf, shape);
}

} // namespace

void writeFloatingShapes(Story& story, const Drawing& drawing, const Placement& placement) {
    if (drawing.shapes.empty())
        return;
    if (isSingleShape(drawing)) {
        writeSingleShape(story, drawing, placement);
        return;
    }
    const RtfGroup group(story.rtf, "shpgrp");
    const RtfDestination instance(story.rtf, "shpinst");
    writePlacement(story, placement, {drawing.width, drawing.height, 0});
    writeGroup(story, drawing);
}

} // namespace orvane::write::rtf
