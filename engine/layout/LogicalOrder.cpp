#include "layout/LogicalOrder.h"

#include "layout/Characters.h"

#include <unicode/ubidi.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <memory>

namespace orvane::layout {
namespace {

struct BidiCloser {
    void operator()(UBiDi* bidi) const { ubidi_close(bidi); }
};
using BidiPtr = std::unique_ptr<UBiDi, BidiCloser>;

/// The line as ICU takes it: one code unit a cluster or gap, which is enough as only the class of the character
/// matters.
struct VisualText {
    std::u16string units;
    std::vector<int> clusterOfUnit; ///< -1 for a gap
};

bool isDirected(char32_t c) {
    return isRightToLeftLetter(c) || isLeftToRightLetter(c) || isDigit(c);
}

/// A code unit with the direction of `cluster`. Characters beyond 16 bits are represented by one of their direction.
char16_t unitOf(const Cluster& cluster) {
    const auto directed = std::find_if(cluster.text.begin(), cluster.text.end(), isDirected);
    const char32_t c = directed == cluster.text.end() ? cluster.text.front() : *directed;
    if (c <= 0xFFFF)
        return static_cast<char16_t>(c);
    return isRightToLeftLetter(c) ? u'\x5D0' : u'a';
}

VisualText visualTextOf(const std::vector<Cluster>& clusters) {
    VisualText visual;
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        if (i > 0 && clusters[i].gapBefore.kind != Gap::None) {
            visual.units += clusters[i].gapBefore.kind == Gap::Tab ? u'\t' : u' ';
            visual.clusterOfUnit.push_back(-1);
        }
        visual.units += unitOf(clusters[i]);
        visual.clusterOfUnit.push_back(static_cast<int>(i));
    }
    return visual;
}

/// The order in which the units are read; empty when ICU cannot tell.
std::vector<int32_t> logicalOrder(const VisualText& visual, bool isBaseRightToLeft, std::vector<bool>& isRightToLeft) {
    UErrorCode status = U_ZERO_ERROR;
    const auto length = static_cast<int32_t>(visual.units.size());
    const BidiPtr inverse(ubidi_openSized(length, 0, &status));
    if (U_FAILURE(status))
        return {};
    ubidi_setReorderingMode(inverse.get(), UBIDI_REORDER_INVERSE_LIKE_DIRECT);
    ubidi_setPara(inverse.get(), visual.units.data(), length, isBaseRightToLeft ? 1 : 0, nullptr, &status);
    std::vector<int32_t> order(visual.units.size());
    ubidi_getVisualMap(inverse.get(), order.data(), &status);
    const UBiDiLevel* levels = ubidi_getLevels(inverse.get(), &status);
    if (U_FAILURE(status))
        return {};
    for (const int32_t unit : order)
        isRightToLeft.push_back(levels[unit] % 2 != 0);
    return order;
}

/// Brackets show the shape they have on the page; read from right to left they are the other one.
void mirror(Cluster& cluster) {
    if (cluster.text.size() == 1)
        cluster.text.front() = static_cast<char32_t>(u_charMirror(static_cast<UChar32>(cluster.text.front())));
}

} // namespace

void DirectionCount::add(const std::vector<Cluster>& clusters) {
    for (const Cluster& cluster : clusters)
        for (const char32_t c : cluster.text) {
            leftToRight += isLeftToRightLetter(c);
            rightToLeft += isRightToLeftLetter(c);
        }
}

LogicalLine toLogicalOrder(std::vector<Cluster> clusters, const DirectionCount& page) {
    LogicalLine line;
    DirectionCount count;
    count.add(clusters);
    if (count.rightToLeft == 0) {
        line.isRightToLeft.assign(clusters.size(), false);
        line.clusters = std::move(clusters);
        return line;
    }
    const bool isPageRightToLeft = page.rightToLeft > page.leftToRight;
    line.isBaseRightToLeft = isPageRightToLeft || count.rightToLeft > count.leftToRight;

    const VisualText visual = visualTextOf(clusters);
    std::vector<bool> isUnitRightToLeft;
    const std::vector<int32_t> order = logicalOrder(visual, line.isBaseRightToLeft, isUnitRightToLeft);
    if (order.empty()) {
        line.isRightToLeft.assign(clusters.size(), false);
        line.clusters = std::move(clusters);
        return line;
    }
    ClusterGap gap;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const int source = visual.clusterOfUnit[static_cast<std::size_t>(order[i])];
        if (source < 0) {
            // The gap lies before the unit to its right on the page, whose note of it is taken over.
            gap = clusters[static_cast<std::size_t>(visual.clusterOfUnit[static_cast<std::size_t>(order[i]) + 1])]
                      .gapBefore;
            continue;
        }
        Cluster cluster = clusters[static_cast<std::size_t>(source)];
        if (isUnitRightToLeft[i])
            mirror(cluster);
        cluster.gapBefore = gap;
        gap = {};
        line.clusters.push_back(std::move(cluster));
        line.isRightToLeft.push_back(isUnitRightToLeft[i]);
    }
    return line;
}

} // namespace orvane::layout
