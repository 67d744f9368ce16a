#include "layout/text/LeftToRightChains.h"

#include "layout/text/BracketSides.h"
#include "layout/text/Characters.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <numeric>

namespace orvane::layout {
namespace {

constexpr char16_t kNumberUnit = u'1';

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
    return isRightToLeftLetter(c) ? kRightToLeftUnit : kLeftToRightUnit;
}

/// For each cluster its place in the order of painting.
std::vector<int> paintRanks(const std::vector<Cluster>& clusters) {
    std::vector<std::size_t> painted(clusters.size());
    std::iota(painted.begin(), painted.end(), std::size_t{0});
    std::stable_sort(painted.begin(), painted.end(),
                     [&](std::size_t a, std::size_t b) { return clusters[a].glyph < clusters[b].glyph; });
    std::vector<int> rank(clusters.size());
    for (std::size_t i = 0; i < painted.size(); ++i)
        rank[painted[i]] = static_cast<int>(i);
    return rank;
}

/// For each cluster the number of the string it was painted in; empty when all stand in one.
std::vector<int> paintedStrings(const std::vector<int>& rank) {
    std::vector<int> strings(rank.size(), 0);
    for (std::size_t i = 1; i < rank.size(); ++i)
        strings[i] = strings[i - 1] + (rank[i] == rank[i - 1] + 1 ? 0 : 1);
    if (strings.empty() || strings.back() == 0)
        strings.clear();
    return strings;
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

bool isCore(char16_t unit) {
    return isDigit(unit) || isLeftToRightLetter(unit);
}

/// Strings without right-to-left letters: a name, a number, or several of them, all of it in the order of the page.
void bindStrings(VisualText& visual) {
    const std::vector<int>& strings = visual.stringOfUnit;
    for (std::size_t begin = 0, end = 0; begin < strings.size(); begin = end) {
        while (end < strings.size() && strings[end] == strings[begin])
            ++end;
        const auto from = visual.units.begin() + static_cast<std::ptrdiff_t>(begin);
        const auto to = visual.units.begin() + static_cast<std::ptrdiff_t>(end);
        if (std::any_of(from, to, [](char16_t unit) { return isRightToLeftLetter(unit); }) ||
            std::none_of(from, to, isCore))
            continue;
        const bool hasLetter = std::any_of(from, to, [](char16_t unit) { return isLeftToRightLetter(unit); });
        std::fill(from, to, hasLetter ? kLeftToRightUnit : kNumberUnit);
    }
}

bool hasDigits(const std::u16string& units, std::size_t first, std::size_t last) {
    return last <= units.size() &&
           std::all_of(units.begin() + static_cast<std::ptrdiff_t>(first),
                       units.begin() + static_cast<std::ptrdiff_t>(last), [](char16_t unit) { return isDigit(unit); });
}

/// A blank of a long number, "3 001": behind it stand three digits, before it up to three.
bool partsDigitGroups(const std::u16string& units, std::size_t blank) {
    constexpr std::size_t kGroup = 3;
    const auto isDigitAt = [&](std::size_t i) { return i < units.size() && isDigit(units[i]); };
    std::size_t before = 0;
    while (before < blank && isDigit(units[blank - 1 - before]))
        ++before;
    return before > 0 && before <= kGroup && hasDigits(units, blank + 1, blank + 1 + kGroup) &&
           !isDigitAt(blank + 1 + kGroup);
}

void bindDigitGroups(VisualText& visual) {
    const std::u16string units = visual.units;
    for (std::size_t i = 0; i < units.size(); ++i)
        if (units[i] == u' ' && partsDigitGroups(units, i))
            visual.units[i] = kNumberUnit;
}

/// The hyphen of a range whose numbers were painted from right to left, each of them from left to right: right-to-left
/// letters before a range turn it around. Source: Unicode Standard Annex #9, W2 and W4.
bool partsTurnedNumbers(const VisualText& visual, std::size_t unit) {
    const std::u32string_view kHyphens = U"-+\u2013\u2212";
    const std::vector<int>& ranks = visual.rankOfUnit;
    const auto isDigitAt = [&](std::size_t i) { return i < visual.units.size() && isDigit(visual.units[i]); };
    const auto isNumberFrom = [&](std::size_t i) {
        return isDigitAt(i) && isDigitAt(i + 1) && ranks[i] >= 0 && ranks[i] < ranks[i + 1];
    };
    if (unit == 0 || kHyphens.find(visual.units[unit]) == kHyphens.npos || !isDigitAt(unit - 1) || !isDigitAt(unit + 1))
        return false;
    return ranks[unit - 1] > ranks[unit] && ranks[unit] > ranks[unit + 1] &&
           (isNumberFrom(unit + 1) || (unit > 1 && isNumberFrom(unit - 2)));
}

void partTurnedNumbers(VisualText& visual) {
    for (std::size_t unit = 0; unit < visual.units.size(); ++unit)
        if (partsTurnedNumbers(visual, unit))
            visual.units[unit] = kRightToLeftUnit;
}

/// True when `unit` is not known to have been painted apart from its right neighbour.
bool mayBeOneString(const VisualText& visual, std::size_t unit) {
    return visual.stringOfUnit.empty() || visual.stringOfUnit[unit] == visual.stringOfUnit[unit + 1];
}

} // namespace

VisualText visualTextOf(const std::vector<Cluster>& clusters) {
    VisualText visual;
    const std::vector<int> ranks = paintRanks(clusters);
    const std::vector<int> strings = paintedStrings(ranks);
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        if (i > 0 && clusters[i].gapBefore.kind != Gap::None) {
            visual.units += clusters[i].gapBefore.kind == Gap::Tab ? u'\t' : u' ';
            visual.clusterOfUnit.push_back(-1);
            visual.rankOfUnit.push_back(-1);
            if (!strings.empty())
                visual.stringOfUnit.push_back(strings[i] == strings[i - 1] ? strings[i] : -1);
        }
        visual.units += unitOf(directedCharacter(clusters[i]));
        visual.clusterOfUnit.push_back(static_cast<int>(i));
        visual.rankOfUnit.push_back(ranks[i]);
        if (!strings.empty())
            visual.stringOfUnit.push_back(strings[i]);
    }
    return visual;
}

void bindChains(VisualText& visual) {
    partTurnedNumbers(visual);
    bindStrings(visual);
    bindDigitGroups(visual);
    std::u16string& units = visual.units;
    const auto ends = [&](std::size_t i) {
        return i >= units.size() || units[i] == u' ' || units[i] == u'\t' || isRightToLeftLetter(units[i]);
    };
    for (std::size_t first = 0; first < units.size(); ++first) {
        if (ends(first) || !isCore(units[first]))
            continue;
        std::size_t begin = first, end = first, last = first;
        bool hasLetter = false;
        for (; !ends(end); ++end) {
            // A number in brackets stands beside another, a letter in brackets within a name: "7(2005)", "AM(R)S".
            if (!hasLetter && bracketSide(units[end]) != BracketSide::None)
                break;
            if (!isCore(units[end]))
                continue;
            last = end;
            hasLetter |= isLeftToRightLetter(units[end]);
        }
        if (begin > 0 && mayBeOneString(visual, begin - 1) && isSignBefore(units[begin - 1], last + 1 - begin) &&
            (begin == 1 || ends(begin - 2)))
            --begin;
        if (last + 1 < units.size() && isSignAfter(units[last + 1]))
            ++last;
        std::fill(units.begin() + static_cast<std::ptrdiff_t>(begin),
                  units.begin() + static_cast<std::ptrdiff_t>(last) + 1, hasLetter ? kLeftToRightUnit : kNumberUnit);
        first = end;
    }
}

} // namespace orvane::layout
