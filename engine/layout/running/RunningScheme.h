#pragma once

#include "layout/running/RunningHeads.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace orvane::layout {

/// Pages that share their running heads, as a section has them: one for all, one for even pages, one for its first
/// page. Each is named by a page (index) that shows it.
struct RunningScheme {
    std::size_t firstPage = 0;
    std::size_t lastPage = 0;
    std::size_t standard = 0;
    std::optional<std::size_t> even;
    bool hasOwnFirstPage = false; ///< the first page's head, or its lack of one, differs from that of the others
};

/// Where a section may or must begin.
enum class SectionChance : unsigned char { None, May, Must };

/// Parts the pages into stretches of one scheme each. `chances` has one entry a page; where heads change on a page at
/// which no section may begin, the page keeps those of the pages before.
std::vector<RunningScheme> findSchemes(const std::vector<PageRunningHeads>& heads,
                                       const std::vector<SectionChance>& chances);

} // namespace orvane::layout
