#include "layout/text/LogicalOrder.h"

#include "layout/text/Characters.h"

#include <unicode/ubidi.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <memory>
#include <optional>

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

constexpr char16_t kRightToLeftUnit = u'\x5D0';

bool isDirected(char32_t c) {
    return isRightToLeftLetter(c) || isLeftToRightLetter(c) || isDigit(c);
}

/// The character that gives `cluster` its direction.
char32_t directedCharacter(const Cluster& cluster) {
    const auto directed = std::find_if(cluster.text.begin(), cluster.text.end(), isDirected);
    return directed == cluster.text.end() ? cluster.text.front() : *directed;
}

/// A code unit with the direction of `c`; characters beyond 16 bits are stood in for.
char16_t unitOf(char32_t c) {
    if (c <= 0xFFFF)
        return static_cast<char16_t>(c);
    return isRightToLeftLetter(c) ? kRightToLeftUnit : u'a';
}

enum class BracketSide { None, Open, Close };

BracketSide bracketSide(char32_t c) {
    if (u_charMirror(static_cast<UChar32>(c)) == static_cast<UChar32>(c))
        return BracketSide::None;
    switch (u_charType(static_cast<UChar32>(c))) {
    case U_START_PUNCTUATION:
    case U_INITIAL_PUNCTUATION:
        return BracketSide::Open;
    case U_END_PUNCTUATION:
    case U_FINAL_PUNCTUATION:
        return BracketSide::Close;
    default:
        return BracketSide::None;
    }
}

/// On which side of a cluster a gap lies says whether a bracket there opens or closes; nothing where both or neither
/// side has one.
std::optional<BracketSide> sideByGaps(bool isGapBefore, bool isGapAfter) {
    if (isGapBefore == isGapAfter)
        return std::nullopt;
    return isGapBefore ? BracketSide::Open : BracketSide::Close;
}

bool isGapAt(const std::vector<Cluster>& clusters, std::size_t i) {
    return i == 0 || i >= clusters.size() || clusters[i].gapBefore.kind != Gap::None;
}

/// Signs that belong to the number after them. A short number with a hyphen or full stop on its left is a label
/// instead, "1-" or "1." as seen from the right.
bool isSignBefore(char16_t c, std::size_t numberLength) {
    constexpr std::size_t kLongestLabel = 2;
    if (c == u'+' || c == u'-' || c == u'.')
        return numberLength > kLongestLabel;
    return c == u'#' || u_charType(c) == U_CURRENCY_SYMBOL;
}

bool isSignAfter(char16_t c) {
    return c == u'%' || c == u'\xB0' || u_charType(c) == U_CURRENCY_SYMBOL;
}

/// Makes each chain of Latin letters, digits and what stands between them one word ("WRC-12") or one number ("10-12",
/// "25/10"). Such chains are written from left to right in all scripts; strictly, Arabic letters before a range would
/// turn its numbers around, but a run of characters that is not marked right-to-left is not turned.
void bindChains(std::u16string& units) {
    const auto ends = [&](std::size_t i) {
        return i >= units.size() || units[i] == u' ' || units[i] == u'\t' || isRightToLeftLetter(units[i]);
    };
    const auto isCore = [&](std::size_t i) { return isDigit(units[i]) || isLeftToRightLetter(units[i]); };
    for (std::size_t first = 0; first < units.size(); ++first) {
        if (ends(first) || !isCore(first))
            continue;
        std::size_t begin = first, end = first, last = first;
        bool hasLetter = false;
        for (; !ends(end); ++end) {
            // A number in brackets stands beside another, a letter in brackets within a name: "7(2005)", "AM(R)S".
            if (!hasLetter && bracketSide(units[end]) != BracketSide::None)
                break;
            if (!isCore(end))
                continue;
            last = end;
            hasLetter |= isLeftToRightLetter(units[end]);
        }
        if (begin > 0 && isSignBefore(units[begin - 1], last + 1 - begin) && (begin == 1 || ends(begin - 2)))
            --begin;
        if (last + 1 < units.size() && isSignAfter(units[last + 1]))
            ++last;
        std::fill(units.begin() + static_cast<std::ptrdiff_t>(begin),
                  units.begin() + static_cast<std::ptrdiff_t>(last) + 1, hasLetter ? u'a' : u'1');
        first = end;
    }
}

VisualText visualTextOf(const std::vector<Cluster>& clusters) {
    VisualText visual;
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        if (i > 0 && clusters[i].gapBefore.kind != Gap::None) {
            visual.units += clusters[i].gapBefore.kind == Gap::Tab ? u'\t' : u' ';
            visual.clusterOfUnit.push_back(-1);
        }
        visual.units += unitOf(directedCharacter(clusters[i]));
        visual.clusterOfUnit.push_back(static_cast<int>(i));
    }
    bindChains(visual.units);
    // A bracket that reads the wrong way round from left to right was typed in right-to-left text.
    for (std::size_t unit = 0; unit < visual.units.size(); ++unit) {
        const BracketSide side = bracketSide(visual.units[unit]);
        if (side == BracketSide::None)
            continue;
        const auto cluster = static_cast<std::size_t>(visual.clusterOfUnit[unit]);
        const auto seen = sideByGaps(isGapAt(clusters, cluster), isGapAt(clusters, cluster + 1));
        if (seen && *seen != side)
            visual.units[unit] = kRightToLeftUnit;
    }
    return visual;
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

/// Files differ in what a bracket in right-to-left text says: the shape on the page, or the character that was typed,
/// which is the other one. The words around it tell: an opening bracket has its gap before it.
void settleBrackets(LogicalLine& line) {
    int typed = 0, shaped = 0;
    std::vector<std::size_t> undecided;
    const auto turn = [](Cluster& cluster) {
        cluster.text.front() = static_cast<char32_t>(u_charMirror(static_cast<UChar32>(cluster.text.front())));
    };
    for (std::size_t i = 0; i < line.clusters.size(); ++i) {
        Cluster& cluster = line.clusters[i];
        if (!line.isRightToLeft[i] || cluster.text.size() != 1)
            continue;
        const BracketSide side = bracketSide(cluster.text.front());
        if (side == BracketSide::None)
            continue;
        const auto meant = sideByGaps(isGapAt(line.clusters, i), isGapAt(line.clusters, i + 1));
        if (!meant) {
            undecided.push_back(i);
        } else if (*meant == side) {
            ++typed;
        } else {
            ++shaped;
            turn(cluster);
        }
    }
    for (const std::size_t i : undecided)
        if (shaped >= typed)
            turn(line.clusters[i]);
}

/// The direction of the paragraph that a line is part of.
bool isBaseRightToLeft(const std::vector<Cluster>& clusters, const DirectionCount& page) {
    DirectionCount line;
    line.add(clusters);
    const bool isPageRightToLeft = page.rightToLeft > page.leftToRight;
    if (line.rightToLeft > 0)
        return isPageRightToLeft || line.rightToLeft > line.leftToRight;
    // Without letters of its own direction the page's counts; Latin text there shows it by a full stop on its left.
    const char32_t first = clusters.front().text.front();
    return isPageRightToLeft &&
           (line.leftToRight == 0 || first == U'.' || first == U',' || first == U':' || first == U'!' || first == U'?');
}

LogicalLine inOrderOfThePage(std::vector<Cluster> clusters) {
    LogicalLine line;
    line.isRightToLeft.assign(clusters.size(), false);
    line.clusters = std::move(clusters);
    return line;
}

bool hasRightToLeftLetters(const std::vector<Cluster>& clusters) {
    DirectionCount count;
    count.add(clusters);
    return count.rightToLeft > 0;
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
    line.isBaseRightToLeft = isBaseRightToLeft(clusters, page);
    if (!line.isBaseRightToLeft && !hasRightToLeftLetters(clusters))
        return inOrderOfThePage(std::move(clusters));
    const VisualText visual = visualTextOf(clusters);
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
            continue;
        }
        Cluster cluster = clusters[static_cast<std::size_t>(source)];
        cluster.gapBefore = gap;
        gap = {};
        line.clusters.push_back(std::move(cluster));
        line.isRightToLeft.push_back(order.isRightToLeft[i]);
    }
    settleBrackets(line);
    return line;
}

} // namespace orvane::layout
