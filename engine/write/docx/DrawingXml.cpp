#include "write/docx/DrawingXml.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include <fmt/format.h>

namespace orvane::write::docx {
namespace {

using namespace document;

/// Where the heights of objects start that were drawn by hand; a reader orders objects by it, not by its size.
constexpr std::int64_t kLowestHeight = 251658240;
constexpr std::int64_t kHighestHeight = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t kMostEmu = std::numeric_limits<std::int32_t>::max();

std::int64_t offset(Emu length) {
    return std::clamp(length.value, -kMostEmu, kMostEmu);
}

const char* nameOf(HorizontalAnchor anchor) {
    switch (anchor) {
    case HorizontalAnchor::Page:
        return "page";
    case HorizontalAnchor::Margin:
        return "margin";
    case HorizontalAnchor::Column:
        return "column";
    }
    return "page";
}

const char* nameOf(VerticalAnchor anchor) {
    switch (anchor) {
    case VerticalAnchor::Page:
        return "page";
    case VerticalAnchor::Margin:
        return "margin";
    case VerticalAnchor::Paragraph:
        return "paragraph";
    }
    return "page";
}

void writeWrapping(XmlWriter& xml, Wrapping wrapping) {
    switch (wrapping) {
    case Wrapping::Square:
        xml.leaf("wp:wrapSquare", {{"wrapText", "bothSides"}});
        return;
    case Wrapping::TopAndBottom:
        xml.leaf("wp:wrapTopAndBottom");
        return;
    case Wrapping::None:
    case Wrapping::BehindText:
        xml.leaf("wp:wrapNone");
        return;
    }
}

const char* nameOf(HorizontalSide side) {
    switch (side) {
    case HorizontalSide::Left:
        return "left";
    case HorizontalSide::Center:
        return "center";
    case HorizontalSide::Right:
        return "right";
    }
    return "left";
}

void writeSide(XmlWriter& xml, const char* from, HorizontalSide side) {
    const XmlElement place(xml, "wp:positionH", {{"relativeFrom", from}});
    const XmlElement value(xml, "wp:align");
    xml.text(nameOf(side));
}

void writePosition(XmlWriter& xml, std::string_view element, const char* from, Emu position) {
    const XmlElement place(xml, element, {{"relativeFrom", from}});
    const XmlElement value(xml, "wp:posOffset");
    xml.text(fmt::format("{}", offset(position)));
}

/// Writes how large the object is and how far it reaches beyond that when it is turned.
void writeExtent(XmlWriter& xml, const DrawingOutline& outline) {
    const double angle = outline.rotation * std::numbers::pi / 180;
    const auto width = static_cast<double>(drawingLength(outline.width));
    const auto height = static_cast<double>(drawingLength(outline.height));
    const double turnedWidth = std::abs(width * std::cos(angle)) + std::abs(height * std::sin(angle));
    const double turnedHeight = std::abs(width * std::sin(angle)) + std::abs(height * std::cos(angle));
    const auto sideways = std::max<std::int64_t>(0, std::llround((turnedWidth - width) / 2));
    const auto upright = std::max<std::int64_t>(0, std::llround((turnedHeight - height) / 2));
    xml.leaf("wp:extent", {{"cx", drawingLength(outline.width)}, {"cy", drawingLength(outline.height)}});
    xml.leaf("wp:effectExtent", {{"l", sideways}, {"t", upright}, {"r", sideways}, {"b", upright}});
}

void writeName(XmlWriter& xml, const DrawingOutline& outline, int id) {
    const XmlElement docPr(xml, "wp:docPr", {{"id", id}, {"name", fmt::format("{} {}", outline.kind, id)}});
    if (!outline.description.empty())
        xml.attribute({"descr", outline.description});
    if (!outline.link.empty())
        xml.leaf("a:hlinkClick", {{"r:id", outline.link}});
}

void writeAnchor(Story& story, const DrawingOutline& outline, const Placement& placement,
                 const GraphicWriter& graphic) {
    const int id = story.nextDrawingId++;
    const std::int64_t height = std::clamp(kLowestHeight + placement.zOrder, std::int64_t{0}, kHighestHeight);
    const XmlElement anchor(story.xml, "wp:anchor",
                            {{"distT", drawingLength(placement.distanceTop)},
                             {"distB", drawingLength(placement.distanceBottom)},
                             {"distL", drawingLength(placement.distanceLeft)},
                             {"distR", drawingLength(placement.distanceRight)},
                             {"simplePos", 0},
                             {"relativeHeight", height},
                             {"behindDoc", placement.wrapping == Wrapping::BehindText ? 1 : 0},
                             {"locked", 0},
                             {"layoutInCell", 1},
                             {"allowOverlap", 1}});
    story.xml.leaf("wp:simplePos", {{"x", 0}, {"y", 0}});
    if (placement.side)
        writeSide(story.xml, nameOf(placement.horizontalAnchor), *placement.side);
    else
        writePosition(story.xml, "wp:positionH", nameOf(placement.horizontalAnchor), placement.x);
    writePosition(story.xml, "wp:positionV", nameOf(placement.verticalAnchor), placement.y);
    writeExtent(story.xml, outline);
    writeWrapping(story.xml, placement.wrapping);
    writeName(story.xml, outline, id);
    story.xml.leaf("wp:cNvGraphicFramePr");
    graphic(id);
}

void writeInline(Story& story, const DrawingOutline& outline, const GraphicWriter& graphic) {
    const int id = story.nextDrawingId++;
    const XmlElement container(story.xml, "wp:inline", {{"distT", 0}, {"distB", 0}, {"distL", 0}, {"distR", 0}});
    writeExtent(story.xml, outline);
    writeName(story.xml, outline, id);
    story.xml.leaf("wp:cNvGraphicFramePr");
    graphic(id);
}

/// Writes a run around a drawing. Shapes are words of a later edition: a reader that does not know them takes the
/// fallback, which is empty, so that no text stands in the file twice. Source: ECMA-376 part 3, 10.2.
void writeDrawingRun(XmlWriter& xml, DrawingDialect dialect, const std::function<void()>& writeContent) {
    const XmlElement run(xml, "w:r");
    if (dialect == DrawingDialect::Picture) {
        const XmlElement drawing(xml, "w:drawing");
        writeContent();
        return;
    }
    const XmlElement alternates(xml, "mc:AlternateContent");
    {
        const XmlElement choice(xml, "mc:Choice", {{"Requires", dialect == DrawingDialect::Group ? "wpg" : "wps"}});
        const XmlElement drawing(xml, "w:drawing");
        writeContent();
    }
    xml.leaf("mc:Fallback");
}

} // namespace

void writeInlineDrawing(Story& story, const DrawingOutline& outline, DrawingDialect dialect,
                        const GraphicWriter& graphic) {
    writeDrawingRun(story.xml, dialect, [&] { writeInline(story, outline, graphic); });
}

void writeFloatingDrawing(Story& story, const DrawingOutline& outline, const Placement& placement,
                          DrawingDialect dialect, const GraphicWriter& graphic) {
    writeDrawingRun(story.xml, dialect, [&] { writeAnchor(story, outline, placement, graphic); });
}

std::int64_t drawingLength(Emu length) {
    return std::clamp(length.value, std::int64_t{0}, kMostEmu);
}

std::int64_t drawingAngle(double degrees) {
    constexpr double kFullTurn = 360;
    constexpr std::int64_t kUnits = 60000;
    double turned = std::fmod(degrees, kFullTurn);
    if (turned < 0)
        turned += kFullTurn;
    return std::llround(turned * kUnits) % (std::int64_t{360} * kUnits);
}

void writeTransform(XmlWriter& xml, const Transform& transform) {
    const XmlElement xfrm(xml, "a:xfrm");
    if (const std::int64_t angle = drawingAngle(transform.rotation); angle != 0)
        xml.attribute({"rot", angle});
    if (transform.isMirroredHorizontally)
        xml.attribute({"flipH", 1});
    if (transform.isMirroredVertically)
        xml.attribute({"flipV", 1});
    xml.leaf("a:off", {{"x", offset(transform.x)}, {"y", offset(transform.y)}});
    xml.leaf("a:ext", {{"cx", drawingLength(transform.width)}, {"cy", drawingLength(transform.height)}});
}

} // namespace orvane::write::docx
