#pragma once

#include "layout/text/TextDraft.h"

#include <string_view>
#include <vector>

namespace orvane::layout {

/// The clusters of a line in the order in which they are read.
struct LogicalLine {
    std::vector<Cluster> clusters;   ///< gapBefore is what lies before each one in this order
    std::vector<bool> isRightToLeft; ///< parallel to `clusters`
    std::vector<bool> isNumber;      ///< likewise: a digit, or what belongs to a number
    bool isBaseRightToLeft = false;
};

/// How many letters of each direction a text has.
struct DirectionCount {
    std::size_t leftToRight = 0;
    std::size_t rightToLeft = 0;

    void add(std::u32string_view text);
    void add(const std::vector<Cluster>& clusters);
};

/// A number of three digits or more behind its sign or full stop, "-90.8", ".464", ".371**" with the marks of a note:
/// right-to-left text would turn it. Shorter ones are labels, seen from the right.
bool isSignedNumber(std::u32string_view text);

/// Brings a line from the order on the page, left to right, into logical order, so that a word processor that lays it
/// out again gets the same page. `page` decides for lines that have letters of both directions in like numbers.
/// Brackets still say what the file says: see settleBrackets(). Source: Unicode Standard Annex #9, run backwards.
LogicalLine toLogicalOrder(std::vector<Cluster> clusters, const DirectionCount& page);

} // namespace orvane::layout
