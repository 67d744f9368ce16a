#include "write/docx/BorderXml.h"

#include <algorithm>

namespace orvane::write::docx {
namespace {

using document::BorderKind;

// What a reader accepts; beyond it borders are dropped. Source: ECMA-376 part 1, 17.3.4.
constexpr int kThinnest = 2;
constexpr int kThickest = 96;
constexpr int kWidestSpace = 31;

const char* nameOf(BorderKind kind) {
    switch (kind) {
    case BorderKind::None:
        return "nil";
    case BorderKind::Single:
        return "single";
    case BorderKind::Double:
        return "double";
    case BorderKind::Dotted:
        return "dotted";
    case BorderKind::Dashed:
        return "dashed";
    case BorderKind::Thick:
        return "thick";
    case BorderKind::Wave:
        return "wave";
    }
    return "single";
}

} // namespace

void writeBorder(XmlWriter& xml, std::string_view element, const document::Border& border) {
    if (border.kind == BorderKind::None) {
        xml.leaf(element, {{"w:val", "nil"}});
        return;
    }
    xml.leaf(element, {{"w:val", nameOf(border.kind)},
                       {"w:sz", std::clamp(border.width.value, kThinnest, kThickest)},
                       {"w:space", std::clamp(border.spacePoints, 0, kWidestSpace)},
                       {"w:color", toHex(border.color)}});
}

void writeShading(XmlWriter& xml, const std::optional<Color>& color) {
    xml.leaf("w:shd", {{"w:val", "clear"}, {"w:color", "auto"}, {"w:fill", color ? toHex(*color) : "auto"}});
}

} // namespace orvane::write::docx
