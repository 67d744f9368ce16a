#include "layout/tables/HeadPlan.h"

#include <algorithm>
#include <map>

namespace orvane::layout {

std::vector<ColumnRange> widestRanges(const std::vector<std::vector<ColumnRange>>& choices) {
    struct Plan {
        int covered = 0;
        std::vector<ColumnRange> ranges;
    };
    std::map<int, Plan> byEnd{{-1, {}}};
    for (const std::vector<ColumnRange>& ofHead : choices) {
        std::map<int, Plan> next;
        for (const auto& [end, plan] : byEnd) {
            for (const ColumnRange& choice : ofHead) {
                if (choice.first <= end)
                    continue;
                Plan longer = plan;
                longer.covered += choice.last - choice.first + 1;
                longer.ranges.push_back(choice);
                const auto at = next.find(choice.last);
                if (at == next.end() || at->second.covered < longer.covered)
                    next[choice.last] = std::move(longer);
            }
        }
        byEnd = std::move(next);
    }
    const auto best = std::max_element(
        byEnd.begin(), byEnd.end(), [](const auto& a, const auto& b) { return a.second.covered < b.second.covered; });
    return best == byEnd.end() ? std::vector<ColumnRange>{} : best->second.ranges;
}

} // namespace orvane::layout
