#include "write/docx/ShapeXml.h"

#include "write/ShapeOutline.h"
#include "write/docx/DrawingXml.h"
#include "write/docx/ShapeGeometryXml.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

using namespace document;

constexpr std::string_view kGroupNamespace = "http://schemas.microsoft.com/office/word/2010/wordprocessingGroup";
/// The widest line that readers take. Source: ECMA-376 part 1, 20.1.10.35.
constexpr std::int64_t kWidestLine = 20116800;

/// Thousandths of a percent, in which DrawingML tells shares.
std::int64_t thousandths(double share) {
    return std::llround(std::clamp(share, 0.0, 1.0) * 100000);
}

void writeColor(XmlWriter& xml, Color value, double opacity) {
    const XmlElement color(xml, "a:srgbClr", {{"val", toHex(value)}});
    if (opacity < 1)
        xml.leaf("a:alpha", {{"val", thousandths(opacity)}});
}

/// Source: ECMA-376 part 1, 20.1.8.33 (gradFill), 20.1.8.41 (lin), 20.1.8.46 (path).
void writeGradient(XmlWriter& xml, const Gradient& gradient, double opacity) {
    constexpr double kPartsADegree = 60000;
    const XmlElement fill(xml, "a:gradFill", {{"rotWithShape", 1}});
    {
        const XmlElement stops(xml, "a:gsLst");
        for (const GradientStop& stop : gradient.stops) {
            const XmlElement gs(xml, "a:gs", {{"pos", thousandths(stop.position)}});
            writeColor(xml, stop.color, opacity);
        }
    }
    if (gradient.kind == GradientKind::Linear) {
        const std::int64_t fullTurn = std::llround(360 * kPartsADegree);
        xml.leaf("a:lin", {{"ang", std::llround(gradient.angle * kPartsADegree) % fullTurn}, {"scaled", 0}});
        return;
    }
    const XmlElement path(xml, "a:path", {{"path", "circle"}});
    xml.leaf("a:fillToRect", {{"l", 50000}, {"t", 50000}, {"r", 50000}, {"b", 50000}});
}

void writeShape(XmlWriter& xml, const Shape& shape, std::optional<int> idInGroup) {
    const XmlElement wsp(xml, "wps:wsp");
    if (idInGroup)
        xml.leaf("wps:cNvPr", {{"id", *idInGroup}, {"name", fmt::format("Shape {}", *idInGroup)}});
    xml.leaf("wps:cNvSpPr");
    {
        const XmlElement properties(xml, "wps:spPr");
        writeShapeGeometry(xml, shape);
        if (shape.gradient)
            writeGradient(xml, *shape.gradient, shape.opacity);
        else
            writeFill(xml, shape.fill, shape.opacity);
        writeOutlineLook(xml, shape.line, shape.opacity);
    }
    xml.leaf("wps:bodyPr");
}

void writeSingleShape(XmlWriter& xml, const Shape& shape) {
    const XmlElement graphic(xml, "a:graphic");
    const XmlElement data(xml, "a:graphicData", {{"uri", kShapeNamespace}});
    writeShape(xml, shape, std::nullopt);
}

/// Writes shapes in the coordinates of the drawing around them.
void writeGroup(Story& story, const Drawing& drawing) {
    XmlWriter& xml = story.xml;
    // A group without width or height would divide its shapes by nothing.
    const std::int64_t width = std::max<std::int64_t>(1, drawingLength(drawing.width));
    const std::int64_t height = std::max<std::int64_t>(1, drawingLength(drawing.height));
    const XmlElement graphic(xml, "a:graphic");
    const XmlElement data(xml, "a:graphicData", {{"uri", kGroupNamespace}});
    const XmlElement group(xml, "wpg:wgp");
    xml.leaf("wpg:cNvGrpSpPr");
    {
        const XmlElement properties(xml, "wpg:grpSpPr");
        const XmlElement transform(xml, "a:xfrm");
        xml.leaf("a:off", {{"x", 0}, {"y", 0}});
        xml.leaf("a:ext", {{"cx", width}, {"cy", height}});
        xml.leaf("a:chOff", {{"x", 0}, {"y", 0}});
        xml.leaf("a:chExt", {{"cx", width}, {"cy", height}});
    }
    for (const Shape& shape : drawing.shapes)
        writeShape(xml, shape, story.nextDrawingId++);
}

} // namespace

void writeFill(XmlWriter& xml, const std::optional<Color>& fill, double opacity) {
    if (!fill) {
        xml.leaf("a:noFill");
        return;
    }
    const XmlElement solid(xml, "a:solidFill");
    writeColor(xml, *fill, opacity);
}

void writeOutlineLook(XmlWriter& xml, const std::optional<ShapeLine>& line, double opacity) {
    const XmlElement ln(xml, "a:ln");
    if (!line || line->kind == BorderKind::None) {
        xml.leaf("a:noFill");
        return;
    }
    xml.attribute({"w", std::clamp(line->width.value, std::int64_t{0}, kWidestLine)});
    if (line->kind == BorderKind::Double)
        xml.attribute({"cmpd", "dbl"});
    writeFill(xml, line->color, opacity);
    if (line->kind == BorderKind::Dotted)
        xml.leaf("a:prstDash", {{"val", "sysDot"}});
    if (line->kind == BorderKind::Dashed)
        xml.leaf("a:prstDash", {{"val", "dash"}});
}

void writeFloatingShapes(Story& story, const Drawing& drawing, const Placement& placement) {
    if (drawing.shapes.empty())
        return;
    const DrawingOutline outline{drawing.width, drawing.height, 0, "Drawing", drawing.alternateText, {}};
    const Shape& first = drawing.shapes.front();
    if (isSingleShape(drawing))
        writeFloatingDrawing(story, outline, placement, DrawingDialect::Shape,
                             [&](int) { writeSingleShape(story.xml, first); });
    else
        writeFloatingDrawing(story, outline, placement, DrawingDialect::Group,
                             [&](int) { writeGroup(story, drawing); });
}

} // namespace orvane::write::docx
