#include "layout/text/BracketSides.h"

#include <unicode/uchar.h>

namespace orvane::layout {
namespace {

bool isGapAt(const std::vector<Cluster>& clusters, std::size_t i) {
    return i == 0 || i >= clusters.size() || clusters[i].gapBefore.kind != Gap::None;
}

/// A bracket of a line, and what its gaps say of it.
struct Bracket {
    std::size_t cluster = 0;
    BracketSide side = BracketSide::None;
    std::optional<BracketSide> meant;
};

std::vector<Bracket> bracketsOf(const std::vector<Cluster>& clusters, const std::vector<bool>& isRightToLeft) {
    std::vector<Bracket> brackets;
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        if (!isRightToLeft[i] || clusters[i].text.size() != 1)
            continue;
        const BracketSide side = bracketSide(clusters[i].text.front());
        if (side != BracketSide::None)
            brackets.push_back({i, side, sideByGaps(clusters, i)});
    }
    return brackets;
}

BracketCount countOf(const std::vector<Bracket>& brackets) {
    BracketCount count;
    for (const Bracket& bracket : brackets) {
        count.typed += bracket.meant && *bracket.meant == bracket.side;
        count.shaped += bracket.meant && *bracket.meant != bracket.side;
    }
    // Without gaps the first bracket of a line opens and the last one closes.
    if (count.typed + count.shaped == 0 && brackets.size() > 1 && brackets.front().side != brackets.back().side)
        (brackets.front().side == BracketSide::Open ? count.typed : count.shaped) += 1;
    return count;
}

} // namespace

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

std::optional<BracketSide> sideByGaps(const std::vector<Cluster>& clusters, std::size_t i) {
    const bool isGapBefore = isGapAt(clusters, i);
    if (isGapBefore == isGapAt(clusters, i + 1))
        return std::nullopt;
    return isGapBefore ? BracketSide::Open : BracketSide::Close;
}

void BracketCount::add(const std::vector<Cluster>& clusters, const std::vector<bool>& isRightToLeft) {
    const BracketCount line = countOf(bracketsOf(clusters, isRightToLeft));
    typed += line.typed;
    shaped += line.shaped;
}

void settleBrackets(std::vector<Cluster>& clusters, const std::vector<bool>& isRightToLeft, const BracketCount& page) {
    const std::vector<Bracket> brackets = bracketsOf(clusters, isRightToLeft);
    const BracketCount line = countOf(brackets);
    const bool saysShapes = line.typed != line.shaped ? line.shaped > line.typed : page.shaped >= page.typed;
    for (const Bracket& bracket : brackets) {
        if (bracket.meant ? *bracket.meant == bracket.side : !saysShapes)
            continue;
        char32_t& c = clusters[bracket.cluster].text.front();
        c = static_cast<char32_t>(u_charMirror(static_cast<UChar32>(c)));
    }
}

} // namespace orvane::layout
