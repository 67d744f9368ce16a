#include "write/rtf/BorderRtf.h"

#include <algorithm>
#include <cmath>

namespace orvane::write::rtf {
namespace {

using document::BorderKind;

/// What readers accept. Source: RTF 1.9.1, "Paragraph Borders" (\brdrw, \brsp).
constexpr long kThickest = 255;
constexpr int kWidestSpace = 31;
constexpr double kTwipsAnEighthPoint = 2.5;
constexpr int kTwipsAPoint = 20;

const char* wordFor(BorderKind kind) {
    switch (kind) {
    case BorderKind::None:
        return "brdrnone";
    case BorderKind::Single:
        return "brdrs";
    case BorderKind::Double:
        return "brdrdb";
    case BorderKind::Dotted:
        return "brdrdot";
    case BorderKind::Dashed:
        return "brdrdash";
    case BorderKind::Thick:
        return "brdrth";
    case BorderKind::Wave:
        return "brdrwavy";
    }
    return "brdrs";
}

} // namespace

void writeBorder(RtfState& state, RtfStream& rtf, std::string_view side, const document::Border& border) {
    rtf.word(side);
    rtf.word(wordFor(border.kind));
    if (border.kind == BorderKind::None)
        return;
    rtf.word("brdrw", std::clamp(std::lround(border.width.value * kTwipsAnEighthPoint), 1L, kThickest));
    if (border.spacePoints > 0)
        rtf.word("brsp", std::min(border.spacePoints, kWidestSpace) * kTwipsAPoint);
    rtf.word("brdrcf", state.colors.numberOf(border.color));
}

} // namespace orvane::write::rtf
