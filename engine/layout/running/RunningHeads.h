#pragma once

#include "layout/running/PageNumbers.h"
#include "layout/running/RunningParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::layout {

/// What repeats at the head or foot of a page.
struct RunningHead {
    PageText content; ///< its lines, rules, grounds and pictures where they stood; size and fonts of the page
    std::vector<RunningField> fields;
    std::string key;   ///< equal for heads that show the same, page numbers and rules aside
    std::string rules; ///< equal for heads with the same rules
};

struct PageRunningHeads {
    std::optional<RunningHead> header;
    std::optional<RunningHead> footer;
    std::optional<PageNumber> number;
};

/// A head or foot of the page with nothing in it yet.
RunningHead emptyHead(const PageText& page);

/// Takes what repeats over pages near their edges out of `pages`: rows are peeled off from the edge inwards, each
/// compared with those of the next and the second next page (heads of odd and even pages differ) and with the ones
/// before; page numbers count. Pictures and rules that belong to them come along. Returns one entry a page.
std::vector<PageRunningHeads> takeRunningHeads(std::vector<PageText>& pages, const RunningParameters& parameters);

} // namespace orvane::layout
