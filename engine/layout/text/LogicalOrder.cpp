#include "layout/text/LogicalOrder.h"

#include "layout/text/BracketSides.h"
#include "layout/text/Characters.h"
#include "layout/text/LeftToRightChains.h"

#include <unicode/ubidi.h>

#include <algorithm>
#include <memory>

namespace orvane::layout {
namespace {

struct BidiCloser {
    void operator()(UBiDi* bidi) const { ubidi_close(bidi); }
};
using BidiPtr = std::unique_ptr<UBiDi, BidiCloser>;

constexpr char32_t kNoBreakSpace = U'\u00A0';

/// A bracket that reads the wrong way round from left to right was typed in right-to-left text.
void markTurnedBrackets(VisualText& visual, const std::vector<Cluster>& clusters) {
    for (std::size_t unit = 0; unit < visual.units.size(); ++unit) {
        const BracketSide side = bracketSide(visual.units[unit]);
        if (side == BracketSide::None)
            continue;
        const auto seen = sideByGaps(clusters, static_cast<std::size_t>(visual.clusterOfUnit[unit]));
        if (seen && *seen != side)
            visual.units[unit] = kRightToLeftUnit;
    }
}

/// An order of units with the direction of each.
struct Order {
    std::vector<int32_t> units;
    std::vector<bool> isRightToLeft;
};

/// The order in which the units of `visual` are read. Empty when ICU cannot tell.
Order logicalOrder(const std::u16string& visual, bool isBaseRightToLeft) {
    UErrorCode status = U_ZERO_ERROR;
    const auto length = static_cast<int32_t>(visual.size());
    const BidiPtr bidi(ubidi_openSized(length, 0, &status));
    if (U_FAILURE(status))
        return {};
    ubidi_setReorderingMode(bidi.get(), UBIDI_REORDER_INVERSE_LIKE_DIRECT);
    ubidi_setPara(bidi.get(), visual.data(), length, isBaseRightToLeft ? 1 : 0, nullptr, &status);
    Order order;
    order.units.resize(visual.size());
    ubidi_getVisualMap(bidi.get(), order.units.data(), &status);
    const UBiDiLevel* levels = ubidi_getLevels(bidi.get(), &status);
    if (U_FAILURE(status))
        return {};
    for (const int32_t unit : order.units)
        order.isRightToLeft.push_back(levels[unit] % 2 != 0);
    return order;
}

std::u32string textOf(const std::vector<Cluster>& clusters) {
    std::u32string text;
    for (const Cluster& cluster : clusters)
        text += cluster.text;
    return text;
}

/// A number with a leader on its right.
bool startsWithNumberOfEntry(const std::vector<Cluster>& clusters) {
    const auto isLed = [](const Cluster& cluster) { return cluster.gapBefore.leader != document::TabLeader::None; };
    const auto led = std::find_if(clusters.begin(), clusters.end(), isLed);
    return led != clusters.begin() && led != clusters.end() &&
           std::all_of(clusters.begin(), led, [](const Cluster& cluster) { return isDigit(cluster.text.front()); });
}

/// The direction of the paragraph that a line is part of.
bool isBaseRightToLeft(const std::vector<Cluster>& clusters, const DirectionCount& page) {
    DirectionCount line;
    line.add(clusters);
    const bool isPageRightToLeft = page.rightToLeft > page.leftToRight;
    if (line.rightToLeft > 0)
        return isPageRightToLeft || line.rightToLeft > line.leftToRight;
    // Without letters of its own direction the page's counts; Latin text there shows it by what stands on its left: a
    // full stop, or the page number of an entry.
    const char32_t first = clusters.front().text.front();
    if (isSignedNumber(textOf(clusters)))
        return false;
    return isPageRightToLeft && (line.leftToRight == 0 || first == U'.' || first == U',' || first == U':' ||
                                 first == U'!' || first == U'?' || startsWithNumberOfEntry(clusters));
}

LogicalLine inOrderOfThePage(std::vector<Cluster> clusters) {
    LogicalLine line;
    line.isRightToLeft.assign(clusters.size(), false);
    line.isNumber.assign(clusters.size(), false);
    line.clusters = std::move(clusters);
    return line;
}

bool hasRightToLeftLetters(const std::vector<Cluster>& clusters) {
    DirectionCount count;
    count.add(clusters);
    return count.rightToLeft > 0;
}

} // namespace

void DirectionCount::add(std::u32string_view text) {
    for (const char32_t c : text) {
        leftToRight += isLeftToRightLetter(c);
        rightToLeft += isRightToLeftLetter(c);
    }
}

void DirectionCount::add(const std::vector<Cluster>& clusters) {
    for (const Cluster& cluster : clusters)
        add(cluster.text);
}

bool isSignedNumber(std::u32string_view text) {
    constexpr std::size_t kFewestDigits = 3;
    constexpr std::u32string_view kSigns = U"+-.\u2212", kSeparators = U".,\u00A0 ", kMarks = U"*\u2020\u2021";
    while (!text.empty() && kMarks.find(text.back()) != kMarks.npos)
        text.remove_suffix(1);
    const auto isPart = [&](char32_t c) { return isDigit(c) || kSeparators.find(c) != kSeparators.npos; };
    return !text.empty() && kSigns.find(text.front()) != kSigns.npos &&
           std::all_of(text.begin() + 1, text.end(), isPart) &&
           static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isDigit)) >= kFewestDigits;
}

LogicalLine toLogicalOrder(std::vector<Cluster> clusters, const DirectionCount& page) {
    LogicalLine line;
    line.isBaseRightToLeft = isBaseRightToLeft(clusters, page);
    if (!line.isBaseRightToLeft && !hasRightToLeftLetters(clusters))
        return inOrderOfThePage(std::move(clusters));
    VisualText visual = visualTextOf(clusters);
    bindChains(visual);
    markTurnedBrackets(visual, clusters);
    const Order order = logicalOrder(visual.units, line.isBaseRightToLeft);
    if (order.units.empty())
        return inOrderOfThePage(std::move(clusters));
    ClusterGap gap;
    for (std::size_t i = 0; i < order.units.size(); ++i) {
        const auto unit = static_cast<std::size_t>(order.units[i]);
        const int source = visual.clusterOfUnit[unit];
        if (source < 0) {
            // A gap is noted at the cluster to its right on the page.
            gap = clusters[static_cast<std::size_t>(visual.clusterOfUnit[unit + 1])].gapBefore;
            // An ordinary blank would let the parts of a number change places where the text runs leftwards.
            if (line.isBaseRightToLeft && isDigit(visual.units[unit]))
                gap.blank = kNoBreakSpace;
            continue;
        }
        Cluster cluster = clusters[static_cast<std::size_t>(source)];
        cluster.gapBefore = gap;
        gap = {};
        line.clusters.push_back(std::move(cluster));
        line.isRightToLeft.push_back(order.isRightToLeft[i]);
        line.isNumber.push_back(isDigit(visual.units[unit]));
    }
    return line;
}

} // namespace orvane::layout
