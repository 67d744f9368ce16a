#include "write/doc/BorderDoc.h"

#include "write/MarkerColors.h"
#include "write/doc/PropertyList.h"

#include <algorithm>

namespace orvane::write::doc {
namespace {

using document::Border;
using document::BorderKind;

// What readers accept. Source: [MS-DOC] 2.9.17 (dptLineWidth, dptSpace).
constexpr int kThinnest = 2;
constexpr int kThickest = 96;
constexpr int kWidestSpace = 31;

/// Source: [MS-DOC] 2.9.22 (BrcType).
int kindNumber(BorderKind kind) {
    switch (kind) {
    case BorderKind::None:
        return 0;
    case BorderKind::Single:
        return 1;
    case BorderKind::Thick:
        return 2;
    case BorderKind::Double:
        return 3;
    case BorderKind::Dotted:
        return 6;
    case BorderKind::Dashed:
        return 7;
    case BorderKind::Wave:
        return 20;
    }
    return 1;
}

int lineWidth(const Border& border) {
    return std::clamp(border.width.value, kThinnest, kThickest);
}

} // namespace

void addBorder(Bytes& bytes, const Border& border) {
    if (border.kind == BorderKind::None) {
        bytes.zeros(8);
        return;
    }
    bytes.u32(colorNumber(border.color)).u8(lineWidth(border)).u8(kindNumber(border.kind));
    bytes.u16(std::clamp(border.spacePoints, 0, kWidestSpace));
}

void addShortBorder(Bytes& bytes, const Border& border) {
    if (border.kind == BorderKind::None) {
        bytes.zeros(4);
        return;
    }
    // 0, where it is none of the sixteen colours, is the one that a reader takes by itself.
    bytes.u8(lineWidth(border)).u8(kindNumber(border.kind)).u8(markerColor(border.color));
    bytes.u8(std::clamp(border.spacePoints, 0, kWidestSpace));
}

} // namespace orvane::write::doc
