#include "write/doc/ShapeDoc.h"

#include "write/ShapeOutline.h"
#include "write/StoredGradient.h"
#include "write/doc/ArtRecords.h"
#include "write/doc/PropertyList.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::write::doc {
namespace {

using namespace document;
using Verb = Shape::Verb;

// Properties of shapes. Source: [MS-ODRAW] 2.3.6 (geometry), 2.3.7 (fill), 2.3.8 (line), 2.3.4 (shape).
constexpr int kRotation = 0x0004;
constexpr int kTextNumber = 0x0080;
constexpr int kTextLeft = 0x0081;
constexpr int kTextTop = 0x0082;
constexpr int kTextRight = 0x0083;
constexpr int kTextBottom = 0x0084;
constexpr int kTextFlow = 0x0088;
constexpr int kTextSwitches = 0x00BF;
constexpr int kPictureInStore = 0x4104;
constexpr int kGeometryLeft = 0x0140;
constexpr int kGeometryTop = 0x0141;
constexpr int kGeometryRight = 0x0142;
constexpr int kGeometryBottom = 0x0143;
constexpr int kShapePath = 0x0144;
constexpr int kVertices = 0x0145;
constexpr int kSegments = 0x0146;
constexpr int kFillType = 0x0180;
constexpr int kFillColor = 0x0181;
constexpr int kFillOpacity = 0x0182;
constexpr int kFillBackColor = 0x0183;
constexpr int kFillBackOpacity = 0x0184;
constexpr int kFillAngle = 0x018B;
constexpr int kFillShadeColors = 0x0197;
constexpr int kFillSwitches = 0x01BF;
constexpr int kLineColor = 0x01C0;
constexpr int kLineOpacity = 0x01C1;
constexpr int kLineWidth = 0x01CB;
constexpr int kLineStyle = 0x01CD;
constexpr int kLineDashing = 0x01CE;
constexpr int kLineSwitches = 0x01FF;
constexpr int kDescription = 0x0381;
constexpr int kWrapLeft = 0x0384;
constexpr int kWrapTop = 0x0385;
constexpr int kWrapRight = 0x0386;
constexpr int kWrapBottom = 0x0387;
constexpr int kHorizontalFrom = 0x0390;
constexpr int kVerticalFrom = 0x0392;
constexpr int kShapeSwitches = 0x03BF;
// A switch counts where its bit in the upper half is set.
constexpr std::int64_t kIsFilled = 0x00100010;
constexpr std::int64_t kIsNotFilled = 0x00100000;
constexpr std::int64_t kHasLine = 0x00080008;
constexpr std::int64_t kHasNoLine = 0x00080000;
constexpr std::int64_t kFitsItsText = 0x00020002;
constexpr std::int64_t kHasFixedSize = 0x00020000;
constexpr std::int64_t kIsBehindText = 0x00200020;

// Source: [MS-ODRAW] 2.4.8 (MSOSHAPEPATH), 2.2.48 (MSOPATHINFO), 2.4.14, 2.4.15 (lines).
constexpr int kComplexPath = 4;
constexpr int kMoveCode = 0x4000;
constexpr int kLineCode = 0x0001;
constexpr int kCurveCode = 0x2001;
constexpr int kCloseCode = 0x6001;
constexpr int kEndCode = 0x8000;
constexpr int kScaledShade = 7; // Source: [MS-ODRAW] 2.4.11 (MSOFILLTYPE)
constexpr int kDoubleLine = 1;
constexpr int kDotted = 2;
constexpr int kDashed = 6;
constexpr int kUpwards = 2; // Source: [MS-ODRAW] 2.4.5 (MSOTXFL)
constexpr int kDownwards = 3;
constexpr double kBinaryPlaces = 65536;

std::int64_t length(Emu value) {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    return std::clamp(value.value, -kMost, kMost);
}

/// Where positions count from. Source: [MS-ODRAW] 2.3.4.20, 2.3.4.22 (posrelh, posrelv).
int horizontalNumber(HorizontalAnchor anchor) {
    switch (anchor) {
    case HorizontalAnchor::Margin:
        return 0;
    case HorizontalAnchor::Page:
        return 1;
    case HorizontalAnchor::Column:
        return 2;
    }
    return 1;
}

int verticalNumber(VerticalAnchor anchor) {
    switch (anchor) {
    case VerticalAnchor::Margin:
        return 0;
    case VerticalAnchor::Page:
        return 1;
    case VerticalAnchor::Paragraph:
        return 2;
    }
    return 1;
}

void addGradient(art::Options& options, const Gradient& gradient, double opacity) {
    options.add(kFillType, kScaledShade);
    options.add(kFillColor, colorNumber(gradient.stops.front().color));
    if (opacity < 1)
        options.add(kFillOpacity, std::llround(std::max(opacity, 0.0) * kBinaryPlaces));
    options.add(kFillBackColor, colorNumber(gradient.stops.back().color));
    if (opacity < 1)
        options.add(kFillBackOpacity, std::llround(std::max(opacity, 0.0) * kBinaryPlaces));
    options.add(kFillAngle, storedGradientAngle(gradient));
    if (gradient.stops.size() > 2) {
        Bytes stops;
        for (const GradientStop& stop : gradient.stops)
            stops.u32(colorNumber(stop.color)).u32(std::llround(stop.position * kBinaryPlaces));
        options.addList(kFillShadeColors, gradient.stops.size(), 8, stops.str());
    }
    options.add(kFillSwitches, kIsFilled);
}

void addFill(art::Options& options, const Shape& shape) {
    if (isStoredAsGradient(shape)) {
        addGradient(options, *shape.gradient, shape.opacity);
        return;
    }
    if (shape.fill) {
        options.add(kFillColor, colorNumber(*shape.fill));
        if (shape.opacity < 1)
            options.add(kFillOpacity, std::llround(std::max(shape.opacity, 0.0) * kBinaryPlaces));
    }
    options.add(kFillSwitches, shape.fill ? kIsFilled : kIsNotFilled);
}

void addLine(art::Options& options, const Shape& shape) {
    const bool isDrawn = shape.line && shape.line->kind != BorderKind::None;
    if (isDrawn) {
        options.add(kLineColor, colorNumber(shape.line->color));
        if (shape.opacity < 1)
            options.add(kLineOpacity, std::llround(std::max(shape.opacity, 0.0) * kBinaryPlaces));
        options.add(kLineWidth, length(shape.line->width));
        if (shape.line->kind == BorderKind::Double)
            options.add(kLineStyle, kDoubleLine);
        if (shape.line->kind == BorderKind::Dashed || shape.line->kind == BorderKind::Dotted)
            options.add(kLineDashing, shape.line->kind == BorderKind::Dashed ? kDashed : kDotted);
    }
    options.add(kLineSwitches, isDrawn ? kHasLine : kHasNoLine);
}

/// The outline as two lists.
class Path {
public:
    explicit Path(const Shape& shape) {
        if (!shape.segments.empty() && shape.segments.front().verb != Verb::Move)
            add(kMoveCode, {Verb::Move, {}}, 1);
        for (const Shape::Segment& segment : shape.segments)
            add(segment);
        code(kEndCode);
    }

    void addTo(art::Options& options) const {
        options.addList(kVertices, m_pointCount, 8, m_points.str());
        options.addList(kSegments, m_segmentCount, 2, m_segments.str());
    }

private:
    void add(const Shape::Segment& segment) {
        switch (segment.verb) {
        case Verb::Move:
            return add(kMoveCode, segment, 1);
        case Verb::Line:
            return add(kLineCode, segment, 1);
        case Verb::Curve:
            return add(kCurveCode, segment, 3);
        case Verb::Close:
            return code(kCloseCode);
        }
    }

    void add(int segmentCode, const Shape::Segment& segment, std::size_t pairs) {
        code(segmentCode);
        for (std::size_t i = 0; i < pairs; ++i, ++m_pointCount)
            m_points.u32(length(segment.xy[2 * i])).u32(length(segment.xy[2 * i + 1]));
    }

    void code(int segmentCode) {
        m_segments.u16(segmentCode);
        ++m_segmentCount;
    }

    Bytes m_points;
    Bytes m_segments;
    std::size_t m_pointCount = 0;
    std::size_t m_segmentCount = 0;
};

/// Which kind of shape the outline is: straight lines and upright rectangles are the word processor's own.
int shapeKind(const Shape& shape) {
    if (isDiagonal(shape))
        return art::kLine;
    return isBox(shape) ? art::kRectangle : art::kFreeForm;
}

void addGeometry(art::Options& options, const Shape& shape) {
    if (shapeKind(shape) != art::kFreeForm)
        return;
    options.add(kGeometryLeft, 0);
    options.add(kGeometryTop, 0);
    options.add(kGeometryRight, length(shape.width));
    options.add(kGeometryBottom, length(shape.height));
    options.add(kShapePath, kComplexPath);
    Path(shape).addTo(options);
}

/// The word processor's line falls from left to right; the other diagonal is its mirror image.
int flipFlags(const Shape& shape) {
    if (!isDiagonal(shape))
        return 0;
    const Shape::Segment& from = shape.segments[0];
    const Shape::Segment& to = shape.segments[1];
    return (from.xy[0] > to.xy[0] ? art::kIsFlippedHorizontally : 0) |
           (from.xy[1] > to.xy[1] ? art::kIsFlippedVertically : 0);
}

void addPlacement(art::Options& options, const Placement& placement, const std::string& description) {
    if (!description.empty())
        options.addText(kDescription, description);
    options.add(kWrapLeft, length(placement.distanceLeft));
    options.add(kWrapTop, length(placement.distanceTop));
    options.add(kWrapRight, length(placement.distanceRight));
    options.add(kWrapBottom, length(placement.distanceBottom));
    if (placement.wrapping == Wrapping::BehindText)
        options.add(kShapeSwitches, kIsBehindText);
}

std::string anchorRecords(const Placement& placement) {
    art::Options more;
    more.add(kHorizontalFrom, horizontalNumber(placement.horizontalAnchor));
    more.add(kVerticalFrom, verticalNumber(placement.verticalAnchor));
    return more.asRecord(art::type::kMoreOptions) + art::record(0, 0, art::type::kAnchor, Bytes().u32(0).str()) +
           art::record(0, 0, art::type::kClientData, Bytes().u32(1).str());
}

std::string singleShape(const Drawing& drawing, const Placement& placement, int id) {
    const Shape& shape = drawing.shapes.front();
    art::Options options;
    addGeometry(options, shape);
    addFill(options, shape);
    addLine(options, shape);
    addPlacement(options, placement, drawing.alternateText);
    return art::container(art::type::kShape,
                          art::shapeHead(shapeKind(shape), id, art::kHasAnchor | art::kHasType | flipFlags(shape)) +
                              options.asRecord() + anchorRecords(placement));
}

std::string member(const Shape& shape, int id) {
    art::Options options;
    addGeometry(options, shape);
    addFill(options, shape);
    addLine(options, shape);
    Bytes box;
    box.u32(length(shape.x)).u32(length(shape.y));
    box.u32(length(shape.x + shape.width)).u32(length(shape.y + shape.height));
    const int flags = art::kIsChild | art::kHasAnchor | art::kHasType | flipFlags(shape);
    return art::container(art::type::kShape, art::shapeHead(shapeKind(shape), id, flags) + options.asRecord() +
                                                 art::record(0, 0, art::type::kChildAnchor, box.str()));
}

/// Shapes in the coordinates of the drawing around them.
std::string group(const Drawing& drawing, const Placement& placement, int id, ShapeNumbers& numbers) {
    Bytes box;
    // A group without width or height would divide its shapes by nothing.
    box.zeros(8).u32(std::max<std::int64_t>(1, length(drawing.width)));
    box.u32(std::max<std::int64_t>(1, length(drawing.height)));
    art::Options options;
    addPlacement(options, placement, drawing.alternateText);
    std::string content =
        art::container(art::type::kShape, art::record(1, 0, art::type::kGroupBox, box.str()) +
                                              art::shapeHead(art::kFreeForm, id, art::kIsGroup | art::kHasAnchor) +
                                              options.asRecord() + anchorRecords(placement));
    for (const Shape& shape : drawing.shapes)
        content += member(shape, numbers.take());
    return art::container(art::type::kGroup, content);
}

} // namespace

std::string drawingRecords(const Drawing& drawing, const Placement& placement, int id, ShapeNumbers& numbers) {
    if (isSingleShape(drawing))
        return singleShape(drawing, placement, id);
    return group(drawing, placement, id, numbers);
}

std::string pictureRecords(const Picture& picture, const Placement& placement, int id, int index) {
    art::Options options;
    art::addPictureLook(options, picture);
    options.add(kPictureInStore, index);
    options.add(kLineSwitches, kHasNoLine);
    addPlacement(options, placement, picture.alternateText);
    const int flags = art::kHasAnchor | art::kHasType | art::flipFlags(picture);
    return art::container(art::type::kShape, art::shapeHead(art::kPictureFrame, id, flags) + options.asRecord() +
                                                 anchorRecords(placement));
}

std::string frameRecords(const Frame& frame, int id, int box) {
    Shape look;
    look.fill = frame.fill;
    look.line = frame.line;
    art::Options options;
    if (frame.rotation != 0)
        options.add(kRotation, art::angle(frame.rotation));
    options.add(kTextNumber, std::int64_t{box} << 16);
    options.add(kTextLeft, length(frame.insetLeft));
    options.add(kTextTop, length(frame.insetTop));
    options.add(kTextRight, length(frame.insetRight));
    options.add(kTextBottom, length(frame.insetBottom));
    if (frame.direction != TextDirection::Horizontal)
        options.add(kTextFlow, frame.direction == TextDirection::Upwards ? kUpwards : kDownwards);
    options.add(kTextSwitches, growsWithText(frame) ? kFitsItsText : kHasFixedSize);
    addFill(options, look);
    addLine(options, look);
    addPlacement(options, frame.placement, {});
    const std::string text = art::record(0, 0, art::type::kClientTextBox, Bytes().u32(std::int64_t{box} << 16).str());
    return art::container(art::type::kShape, art::shapeHead(art::kTextBox, id, art::kHasAnchor | art::kHasType) +
                                                 options.asRecord() + anchorRecords(frame.placement) + text);
}

} // namespace orvane::write::doc
