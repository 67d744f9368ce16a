#include "write/rtf/ShapeProperties.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orvane::write::rtf {
namespace {

using namespace document;

constexpr std::int64_t kMostEmu = std::numeric_limits<std::int32_t>::max();
constexpr double kBinaryPlaces = 65536;
constexpr std::int64_t kEmuATwip = 635;
// Source: [MS-ODRAW] 2.4.14 (MSOLINESTYLE), 2.4.15 (MSOLINEDASHING).
constexpr int kDoubleLine = 1;
constexpr int kDashed = 6;
constexpr int kDotted = 2;

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

/// Units: EMU.
struct StoredBox {
    double left, top, right, bottom;
};

/// Where the object's box stands. A box that is turned onto its side is stored as the box it then covers.
/// Source: [MS-ODRAW] 2.3.18.5 (rotation).
StoredBox storedBox(const Placement& placement, const ShapeExtent& extent) {
    double x = static_cast<double>(placement.x.value);
    double y = static_cast<double>(placement.y.value);
    double width = static_cast<double>(extent.width.value);
    double height = static_cast<double>(extent.height.value);
    const double turn = static_cast<double>(shapeAngle(extent.rotation)) / kBinaryPlaces;
    if ((turn >= 45 && turn < 135) || (turn >= 225 && turn < 315)) {
        x += (width - height) / 2;
        y += (height - width) / 2;
        std::swap(width, height);
    }
    return {x, y, x + width, y + height};
}

std::int64_t colorValue(Color color) {
    return color.red | color.green << 8 | color.blue << 16;
}

std::int64_t twips(double emu) {
    constexpr double kMost = 1e6;
    return std::llround(std::clamp(emu / kEmuATwip, -kMost, kMost));
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
    const StoredBox box = storedBox(placement, extent);
    const AnchorWords horizontal = wordsFor(placement.horizontalAnchor);
    const AnchorWords vertical = wordsFor(placement.verticalAnchor);
    const bool isBehind = placement.wrapping == Wrapping::BehindText;
    rtf.word("shpleft", twips(box.left));
    rtf.word("shptop", twips(box.top));
    rtf.word("shpright", twips(box.right));
    rtf.word("shpbottom", twips(box.bottom));
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
