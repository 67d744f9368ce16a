#pragma once

#include "layout/text/TextDraft.h"

#include <optional>
#include <vector>

namespace orvane::layout {

enum class BracketSide { None, Open, Close };

/// Whether `c` opens or closes, read from left to right; None for what has no mirrored twin.
BracketSide bracketSide(char32_t c);

/// On which side of clusters[i] a gap lies says whether a bracket there opens or closes; nothing where both or neither
/// side has one.
std::optional<BracketSide> sideByGaps(const std::vector<Cluster>& clusters, std::size_t i);

/// Files differ in what a bracket in right-to-left text says: the shape on the page, or the character that was typed,
/// which is the other one. This counts the brackets that can be told.
struct BracketCount {
    int typed = 0;
    int shaped = 0;

    /// Counts those of a line in logical order. Only clusters with `isRightToLeft` are asked.
    void add(const std::vector<Cluster>& clusters, const std::vector<bool>& isRightToLeft);
};

/// Turns the brackets of a line in logical order that say their shape, so that all say what was typed. One that cannot
/// be told follows the others of its line, then those of the page.
void settleBrackets(std::vector<Cluster>& clusters, const std::vector<bool>& isRightToLeft, const BracketCount& page);

} // namespace orvane::layout
