#include "write/rtf/ShapeProperties.h"

#include "write/StoredBox.h"
#include "write/StoredGradient.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <fmt/format.h>

namespace orvane::write::rtf {
namespace {

using namespace document;

constexpr std::int64_t kMostEmu = std::numeric_limits<std::int32_t>::max();
constexpr double kBinaryPlaces = 65536;
// Source: [MS-ODRAW] 2.4.14 (MSOLINESTYLE), 2.4.15 (MSOLINEDASHING).
constexpr int kDoubleLine = 1;
constexpr int kDashed = 6;
constexpr int kDotted = 2;
constexpr int kScaledShade = 7; // Source: [MS-ODRAW] 2.4.11 (MSOFILLTYPE)

/// The words and the property for what a position counts from. Source: RTF 1.9.1, "Shapes", \shpbxpage and others.
struct AnchorWords {
    const char* word;
    int property;
};

AnchorWords wordsFor(HorizontalAnchor anchor) {
    switch (anchor) {
    case HorizontalAnchor::Page:
        return {"shpbxpage", 1};
    case HorizontalAnchor::Margin:
        return {"shpbxmargin", 0};
    case HorizontalAnchor::Column:
        return {"shpbxcolumn", 2};
    }
    return {"shpbxpage", 1};
}

AnchorWords wordsFor(VerticalAnchor anchor) {
    switch (anchor) {
    case VerticalAnchor::Page:
        return {"shpbypage", 1};
    case VerticalAnchor::Margin:
        return {"shpbymargin", 0};
    case VerticalAnchor::Paragraph:
        return {"shpbypara", 2};
    }
    return {"shpbypage", 1};
}

/// Source: RTF 1.9.1, "Shapes" (\shpwr).
int wrapNumber(Wrapping wrapping) {
    switch (wrapping) {
    case Wrapping::TopAndBottom:
        return 1;
    case Wrapping::Square:
        return 2;
    case Wrapping::None:
    case Wrapping::BehindText:
        return 3;
    }
    return 3;
}

std::int64_t colorValue(Color color) {
    return color.red | color.green << 8 | color.blue << 16;
}

} // namespace

void writeShapeProperty(RtfStream& rtf, std::string_view name, std::string_view value) {
    const RtfGroup property(rtf, "sp");
    {
        const RtfGroup group(rtf, "sn");
        rtf.text(name);
    }
    const RtfGroup group(rtf, "sv");
    rtf.text(value);
}

void writeShapeProperty(RtfStream& rtf, std::string_view name, std::int64_t value) {
    writeShapeProperty(rtf, name, std::string_view(std::to_string(value)));
}

void writePlacement(Story& story, const Placement& placement, const ShapeExtent& extent) {
    RtfStream& rtf = story.rtf;
    const StoredBox box = storedBox(placement, extent.width, extent.height, extent.rotation);
    const AnchorWords horizontal = wordsFor(placement.horizontalAnchor);
    const AnchorWords vertical = wordsFor(placement.verticalAnchor);
    const bool isBehind = placement.wrapping == Wrapping::BehindText;
    rtf.word("shpleft", storedTwips(box.left));
    rtf.word("shptop", storedTwips(box.top));
    rtf.word("shpright", storedTwips(box.right));
    rtf.word("shpbottom", storedTwips(box.bottom));
    rtf.word("shpfhdr", story.kind == StoryKind::RunningText ? 1 : 0);
    rtf.word(horizontal.word);
    rtf.word("shpbxignore");
    rtf.word(vertical.word);
    rtf.word("shpbyignore");
    rtf.word("shpwr", wrapNumber(placement.wrapping));
    rtf.word("shpwrk", 0);
    rtf.word("shpfblwtxt", isBehind ? 1 : 0);
    rtf.word("shpz", std::max(0, placement.zOrder));
    writeShapeProperty(rtf, "posrelh", horizontal.property);
    writeShapeProperty(rtf, "posrelv", vertical.property);
    writeShapeProperty(rtf, "fBehindDocument", isBehind ? 1 : 0);
    writeShapeProperty(rtf, "dxWrapDistLeft", shapeLength(placement.distanceLeft));
    writeShapeProperty(rtf, "dyWrapDistTop", shapeLength(placement.distanceTop));
    writeShapeProperty(rtf, "dxWrapDistRight", shapeLength(placement.distanceRight));
    writeShapeProperty(rtf, "dyWrapDistBottom", shapeLength(placement.distanceBottom));
}

void writeFill(RtfStream& rtf, const std::optional<Color>& fill, double opacity) {
    writeShapeProperty(rtf, "fFilled", fill ? 1 : 0);
    if (!fill)
        return;
    writeShapeProperty(rtf, "fillColor", colorValue(*fill));
    if (opacity < 1)
        writeShapeProperty(rtf, "fillOpacity", std::llround(std::max(opacity, 0.0) * kBinaryPlaces));
}

void writeGradient(RtfStream& rtf, const Gradient& gradient, double opacity) {
    writeShapeProperty(rtf, "fFilled", 1);
    writeShapeProperty(rtf, "fillType", kScaledShade);
    writeShapeProperty(rtf, "fillColor", colorValue(gradient.stops.front().color));
    writeShapeProperty(rtf, "fillBackColor", colorValue(gradient.stops.back().color));
    writeShapeProperty(rtf, "fillAngle", storedGradientAngle(gradient));
    if (opacity < 1)
        for (const char* name : {"fillOpacity", "fillBackOpacity"})
            writeShapeProperty(rtf, name, std::llround(std::max(opacity, 0.0) * kBinaryPlaces));
    if (gradient.stops.size() <= 2)
        return;
    std::string colors = fmt::format("8;{}", gradient.stops.size());
    for (const GradientStop& stop : gradient.stops)
        colors += fmt::format(";({},{})", colorValue(stop.color), std::llround(stop.position * kBinaryPlaces));
    writeShapeProperty(rtf, "fillShadeColors", colors);
}

void writeOutlineLook(RtfStream& rtf, const std::optional<ShapeLine>& line, double opacity) {
    const bool isDrawn = line && line->kind != BorderKind::None;
    writeShapeProperty(rtf, "fLine", isDrawn ? 1 : 0);
    if (!isDrawn)
        return;
    writeShapeProperty(rtf, "lineColor", colorValue(line->color));
    writeShapeProperty(rtf, "lineWidth", shapeLength(line->width));
    if (opacity < 1)
        writeShapeProperty(rtf, "lineOpacity", std::llround(std::max(opacity, 0.0) * kBinaryPlaces));
    if (line->kind == BorderKind::Double)
        writeShapeProperty(rtf, "lineStyle", kDoubleLine);
    if (line->kind == BorderKind::Dashed || line->kind == BorderKind::Dotted)
        writeShapeProperty(rtf, "lineDashing", line->kind == BorderKind::Dashed ? kDashed : kDotted);
}

std::int64_t shapeAngle(double degrees) {
    constexpr double kFullTurn = 360;
    double turned = std::fmod(degrees, kFullTurn);
    if (turned < 0)
        turned += kFullTurn;
    return std::llround(turned * kBinaryPlaces) % std::llround(kFullTurn * kBinaryPlaces);
}

std::int64_t shapeLength(Emu length) {
    return std::clamp(length.value, -kMostEmu, kMostEmu);
}

} // namespace orvane::write::rtf
