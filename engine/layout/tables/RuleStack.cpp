#include "layout/tables/RuleStack.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// Joins lines of one height, [first, last) of `order`, whose ends are near.
void appendLevels(const std::vector<BorderLine>& lines, std::vector<std::size_t>::iterator first,
                  std::vector<std::size_t>::iterator last, const TableParameters::Tables& parameters,
                  std::vector<RuleLevel>& levels) {
    std::sort(first, last, [&](std::size_t a, std::size_t b) { return lines[a].from < lines[b].from; });
    const std::size_t oldCount = levels.size();
    for (auto it = first; it != last; ++it) {
        const BorderLine& line = lines[*it];
        if (levels.size() == oldCount || line.from > levels.back().right + parameters.levelGap)
            levels.push_back({line.position, line.from, line.to, {}});
        levels.back().right = std::max(levels.back().right, line.to);
        levels.back().lines.push_back(*it);
    }
}

/// Makes the pieces of one height, [first, end) of `levels`, one level where it has the ends of a whole one: rules
/// above totals are drawn column by column.
void joinPieces(std::vector<RuleLevel>& levels, std::size_t first, std::size_t end,
                const TableParameters::Tables& parameters) {
    if (end - first < parameters.fewestRulePieces)
        return;
    const double left = levels[first].left, right = levels[end - 1].right;
    const auto isNear = [&](double a, double b) { return std::abs(a - b) <= parameters.endSnap; };
    bool isWhole = false;
    for (std::size_t i = 0; i < levels.size(); ++i)
        isWhole =
            isWhole || ((i < first || i >= end) && isNear(levels[i].left, left) && isNear(levels[i].right, right));
    for (std::size_t i = first + 1; i < end; ++i)
        isWhole = isWhole && levels[i].left - levels[i - 1].right <= parameters.widestRuleGap;
    if (!isWhole)
        return;
    for (std::size_t i = first + 1; i < end; ++i)
        levels[first].lines.insert(levels[first].lines.end(), levels[i].lines.begin(), levels[i].lines.end());
    levels[first].right = right;
    levels.erase(levels.begin() + static_cast<std::ptrdiff_t>(first) + 1,
                 levels.begin() + static_cast<std::ptrdiff_t>(end));
}

std::vector<RuleLevel> findLevels(const std::vector<BorderLine>& lines, const TableParameters::Tables& parameters) {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].direction == RuleDirection::Horizontal)
            order.push_back(i);
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return lines[a].position < lines[b].position; });
    std::vector<RuleLevel> levels;
    for (auto first = order.begin(); first != order.end();) {
        const double reach = lines[*first].position + parameters.lineSnap;
        const auto last = std::find_if(first, order.end(), [&](std::size_t i) { return lines[i].position > reach; });
        appendLevels(lines, first, last, parameters, levels);
        first = last;
    }
    for (std::size_t end = levels.size(); end > 0;) {
        std::size_t first = end - 1;
        while (first > 0 && levels[end - 1].y - levels[first - 1].y <= parameters.lineSnap)
            --first;
        joinPieces(levels, first, end, parameters);
        end = first;
    }
    return levels;
}

/// Parts `levels` where the sorted `edge` jumps by more than `snap`.
template<typename Edge>
std::vector<RuleStack> partByEdge(RuleStack levels, const Edge& edge, double snap) {
    std::sort(levels.begin(), levels.end(), [&](const RuleLevel& a, const RuleLevel& b) { return edge(a) < edge(b); });
    std::vector<RuleStack> parts;
    for (RuleLevel& level : levels) {
        if (parts.empty() || edge(level) > edge(parts.back().back()) + snap)
            parts.emplace_back();
        parts.back().push_back(std::move(level));
    }
    return parts;
}

/// Whether `other` is a table of its own between two levels of a stack: several levels, some end of which lies outside.
bool isBetween(const RuleStack& other, const RuleLevel& above, const RuleLevel& below,
               const TableParameters::Tables& parameters) {
    const RuleLevel& level = other.front();
    const bool reachesOut =
        level.left < above.left - parameters.endSnap || level.right > above.right + parameters.endSnap;
    return other.size() > 1 && reachesOut && level.y > above.y && other.back().y < below.y &&
           2 * overlap(level.left, level.right, above.left, above.right) > above.right - above.left;
}

/// Parts a stack between whose levels other tables stand.
std::vector<RuleStack> partAround(const RuleStack& stack, const std::vector<RuleStack>& others,
                                  const TableParameters::Tables& parameters) {
    std::vector<RuleStack> parts(1);
    for (const RuleLevel& level : stack) {
        const bool isParted =
            !parts.back().empty() && std::any_of(others.begin(), others.end(), [&](const auto& other) {
                return isBetween(other, parts.back().back(), level, parameters);
            });
        if (isParted)
            parts.emplace_back();
        parts.back().push_back(level);
    }
    return parts;
}

} // namespace

std::vector<RuleStack> findRuleStacks(const std::vector<BorderLine>& lines, const TableParameters::Tables& parameters) {
    const auto leftOf = [](const RuleLevel& level) { return level.left; };
    const auto rightOf = [](const RuleLevel& level) { return level.right; };
    std::vector<RuleStack> stacks;
    for (RuleStack& sameLeft : partByEdge(findLevels(lines, parameters), leftOf, parameters.endSnap)) {
        for (RuleStack& stack : partByEdge(std::move(sameLeft), rightOf, parameters.endSnap)) {
            std::sort(stack.begin(), stack.end(), [](const RuleLevel& a, const RuleLevel& b) { return a.y < b.y; });
            stacks.push_back(std::move(stack));
        }
    }
    std::vector<RuleStack> parted;
    for (const RuleStack& stack : stacks)
        for (RuleStack& part : partAround(stack, stacks, parameters))
            parted.push_back(std::move(part));
    return parted;
}

} // namespace orvane::layout
