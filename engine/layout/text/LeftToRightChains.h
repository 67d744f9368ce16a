#pragma once

#include "layout/text/TextDraft.h"

#include <string>
#include <vector>

namespace orvane::layout {

/// A line as it stands on the page, from left to right: one code unit a cluster or gap, which is enough as only the
/// class of the character matters to the rules of bidirectional text.
struct VisualText {
    std::u16string units;
    std::vector<int> clusterOfUnit; ///< -1 for a gap
    /// Units of one number were painted one after the other, from left to right. Empty when all of the line was, which
    /// tells nothing.
    std::vector<int> stringOfUnit;
    std::vector<int> rankOfUnit; ///< in the order of painting; -1 for a gap
};

/// What stands for a letter of either direction.
inline constexpr char16_t kLeftToRightUnit = u'a';
inline constexpr char16_t kRightToLeftUnit = u'\x5D0';

VisualText visualTextOf(const std::vector<Cluster>& clusters);

/// Makes each chain of Latin letters, digits and what stands between them one word ("WRC-12") or one number ("10-12",
/// "25/10"). Such chains are written from left to right in all scripts; strictly, Arabic letters before a range would
/// turn its numbers around, but a run of characters that is not marked right-to-left is not turned. A word processor
/// paints such a run as one string, blanks and brackets included, and so tells where it ends. Numbers that it painted
/// one to the left of the other were turned, and stay apart.
void bindChains(VisualText& visual);

} // namespace orvane::layout
