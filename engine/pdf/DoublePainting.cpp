#include "pdf/DoublePainting.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>
#include <vector>

namespace orvane::pdf {
namespace {

/// Offsets in em. Neighbours of the same letter are never this close: the thinnest letters are 0.2 em wide.
constexpr double kLargestOffset = 0.06;
constexpr double kLeastSeenOffset = 0.005;
/// How many glyphs of one code on one line are compared; bounds the work on pages of one letter.
constexpr std::size_t kMostNeighbours = 64;

bool isOneTextTwice(const Glyph& a, const Glyph& b) {
    const double reach = kLargestOffset * a.fontSize;
    return std::abs(a.origin.x - b.origin.x) <= reach && std::abs(a.origin.y - b.origin.y) <= reach &&
           std::abs(a.fontSize - b.fontSize) <= 0.02 * a.fontSize && std::abs(a.angle - b.angle) < 0.1;
}

double offsetOf(const Glyph& a, const Glyph& b) {
    return std::hypot(a.origin.x - b.origin.x, a.origin.y - b.origin.y);
}

/// Which of the two goes; the other takes over what the pair looks like. Requires: first was painted first.
std::size_t dropOne(std::vector<Glyph>& glyphs, std::size_t first, std::size_t second) {
    Glyph& lower = glyphs[first];
    Glyph& upper = glyphs[second];
    const bool isLowerSeen = lower.visibility == Visibility::Visible;
    const bool isUpperSeen = upper.visibility == Visibility::Visible;
    if (isLowerSeen != isUpperSeen)
        return isLowerSeen ? second : first;
    const bool areApart = offsetOf(lower, upper) > kLeastSeenOffset * lower.fontSize;
    if (lower.color != upper.color) {
        if (areApart && !upper.edge)
            upper.edge = lower.color;
        return first;
    }
    lower.isFakeBold = lower.isFakeBold || upper.isFakeBold || areApart;
    return second;
}

} // namespace

void dropDoublePaintedGlyphs(PageContent& page) {
    std::vector<Glyph>& glyphs = page.glyphs;
    std::vector<std::size_t> order(glyphs.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    const auto keyOf = [&](std::size_t i) {
        const Glyph& glyph = glyphs[i];
        return std::tuple(glyph.font, glyph.charCode, glyph.origin.y, glyph.origin.x, i);
    };
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) { return keyOf(a) < keyOf(b); });

    std::vector<bool> isDropped(glyphs.size(), false);
    for (std::size_t i = 0; i < order.size(); ++i) {
        const std::size_t last = std::min(order.size(), i + 1 + kMostNeighbours);
        for (std::size_t j = i + 1; j < last && !isDropped[order[i]]; ++j) {
            const Glyph& a = glyphs[order[i]];
            const Glyph& b = glyphs[order[j]];
            if (a.font != b.font || a.charCode != b.charCode || b.origin.y - a.origin.y > kLargestOffset * a.fontSize)
                break;
            if (!isDropped[order[j]] && isOneTextTwice(a, b))
                isDropped[dropOne(glyphs, std::min(order[i], order[j]), std::max(order[i], order[j]))] = true;
        }
    }
    if (std::find(isDropped.begin(), isDropped.end(), true) == isDropped.end())
        return;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < glyphs.size(); ++i)
        if (!isDropped[i]) {
            if (kept != i)
                glyphs[kept] = std::move(glyphs[i]);
            ++kept;
        }
    glyphs.resize(kept);
}

} // namespace orvane::pdf
