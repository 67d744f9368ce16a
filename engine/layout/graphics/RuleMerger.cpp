#include "layout/graphics/RuleMerger.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace orvane::layout {
namespace {

using document::BorderKind;

double lengthOf(const Rule& rule) {
    return rule.to - rule.from;
}

void sortByPosition(std::vector<Rule>& rules) {
    std::sort(rules.begin(), rules.end(), [](const Rule& a, const Rule& b) {
        return std::tie(a.direction, a.position, a.from, a.to, a.paintOrder) <
               std::tie(b.direction, b.position, b.from, b.to, b.paintOrder);
    });
}

/// Takes `next` into `rule`, which it continues or covers.
void absorb(Rule& rule, const Rule& next) {
    const double length = lengthOf(rule), nextLength = lengthOf(next);
    if (length + nextLength > 0)
        rule.position = (rule.position * length + next.position * nextLength) / (length + nextLength);
    rule.from = std::min(rule.from, next.from);
    rule.to = std::max(rule.to, next.to);
    rule.width = std::max(rule.width, next.width);
    if (nextLength > length)
        rule.paint = next.paint;
    // What covers the earlier piece may have been painted before the later one, which is seen.
    rule.paintOrder = std::max(rule.paintOrder, next.paintOrder);
}

bool isAlike(const Rule& a, const Rule& b, const GraphicsParameters::Rules& limits) {
    return a.color == b.color && a.kind == b.kind &&
           std::abs(a.width - b.width) <= std::max(limits.widthChange, 0.5 * std::min(a.width, b.width));
}

/// Short pieces at even distances, one after the other from `first`; returns one past the last of them.
std::size_t endOfDashes(const std::vector<Rule>& rules, std::size_t first, const GraphicsParameters::Rules& limits) {
    std::size_t last = first + 1;
    if (last >= rules.size())
        return last;
    const double piece = lengthOf(rules[first]);
    const double gap = rules[last].from - rules[first].to;
    if (piece > limits.longestDash || gap <= limits.joinGap || gap > limits.longestDash)
        return last;
    for (; last < rules.size(); ++last) {
        const Rule& rule = rules[last];
        const double here = rule.from - rules[last - 1].to;
        if (!isAlike(rules[first], rule, limits) ||
            std::abs(lengthOf(rule) - piece) > limits.dashEvenness * piece + limits.joinGap ||
            std::abs(here - gap) > limits.dashEvenness * gap + limits.joinGap)
            break;
    }
    return last;
}

/// Joins the pieces of one line, which are sorted by where they begin.
void joinPieces(std::vector<Rule> pieces, const GraphicsParameters::Rules& limits, std::vector<Rule>& joined) {
    for (std::size_t i = 0; i < pieces.size();) {
        Rule rule = pieces[i];
        const std::size_t dashEnd = endOfDashes(pieces, i, limits);
        if (dashEnd - i >= limits.fewestDashes) {
            rule.to = pieces[dashEnd - 1].to;
            rule.kind = lengthOf(pieces[i]) <= limits.dotLength * rule.width ? BorderKind::Dotted : BorderKind::Dashed;
            joined.push_back(rule);
            i = dashEnd;
            continue;
        }
        Rule* before = joined.empty() ? nullptr : &joined.back();
        if (before && before->direction == rule.direction &&
            std::abs(before->position - rule.position) <= limits.sameLine && isAlike(*before, rule, limits) &&
            rule.from - before->to <= limits.joinGap && rule.from >= before->from)
            absorb(*before, rule);
        else
            joined.push_back(rule);
        ++i;
    }
}

/// Rules whose positions are (nearly) one, joined where they continue each other.
std::vector<Rule> joinCollinear(const std::vector<Rule>& rules, const GraphicsParameters::Rules& limits) {
    std::vector<Rule> joined;
    for (std::size_t first = 0; first < rules.size();) {
        std::size_t last = first + 1;
        while (last < rules.size() && rules[last].direction == rules[first].direction &&
               rules[last].position - rules[first].position <= limits.sameLine)
            ++last;
        std::vector<Rule> line(rules.begin() + static_cast<std::ptrdiff_t>(first),
                               rules.begin() + static_cast<std::ptrdiff_t>(last));
        std::stable_sort(line.begin(), line.end(), [](const Rule& a, const Rule& b) {
            return std::tie(a.color, a.from, a.to) < std::tie(b.color, b.from, b.to);
        });
        joinPieces(std::move(line), limits, joined);
        first = last;
    }
    return joined;
}

bool isPair(const Rule& a, const Rule& b, const GraphicsParameters::Rules& limits) {
    const double distance = b.position - a.position;
    return a.direction == b.direction && a.color == b.color && a.kind == BorderKind::Single &&
           b.kind == BorderKind::Single && distance > 0 && distance <= limits.doubleDistance &&
           lengthOf(a) >= limits.shortestDouble && distance >= limits.doubleAgainstWidth * std::max(a.width, b.width) &&
           std::abs(a.from - b.from) <= limits.doubleDistance && std::abs(a.to - b.to) <= limits.doubleDistance;
}

/// Makes `rule` the double one that it draws together with `other`.
void makeDouble(Rule& rule, const Rule& other) {
    const double lineWidth = (rule.width + other.width) / 2;
    rule.kind = BorderKind::Double;
    rule.lineWidth = lineWidth;
    rule.width = std::abs(other.position - rule.position) + lineWidth;
    rule.position = (rule.position + other.position) / 2;
    rule.from = std::min(rule.from, other.from);
    rule.to = std::max(rule.to, other.to);
}

void eraseGone(std::vector<Rule>& rules, const std::vector<bool>& isGone) {
    std::size_t index = 0;
    std::erase_if(rules, [&](const Rule&) { return isGone[index++]; });
}

/// Whether `other` is a broad line beside `rule`, or a piece of one, too close for text between them.
bool isBroadTwin(const Rule& rule, const Rule& other, const GraphicsParameters::Rules& limits) {
    const double distance = std::abs(other.position - rule.position);
    const double width = std::min(rule.width, other.width);
    return rule.direction == other.direction && rule.kind == BorderKind::Single && isAlike(rule, other, limits) &&
           width <= limits.thickest && distance > limits.doubleDistance && distance <= limits.broadDouble * width &&
           other.from >= rule.from - distance && other.to <= rule.to + distance;
}

/// The pieces that draw a broad double rule together with rule `i`: before it in order, or after it, along all of its
/// length. Empty if there are none.
std::vector<std::size_t> broadTwins(const std::vector<Rule>& rules, std::size_t i, bool isBefore,
                                    const GraphicsParameters::Rules& limits) {
    const std::size_t reach = std::min(limits.pairReach, isBefore ? i : rules.size() - 1 - i);
    std::vector<std::size_t> twins;
    double covered = 0;
    for (std::size_t step = 1; step <= reach; ++step) {
        const std::size_t j = isBefore ? i - step : i + step;
        if (!isBroadTwin(rules[i], rules[j], limits))
            continue;
        twins.push_back(j);
        // Where it meets another double rule it ends before that.
        covered += lengthOf(rules[j]) + 2 * std::abs(rules[j].position - rules[i].position);
    }
    if (lengthOf(rules[i]) < limits.shortestDouble || covered < lengthOf(rules[i]))
        twins.clear();
    return twins;
}

/// Broad double rules are drawn in pieces where others meet them: the line inside a frame ends at each rule that parts
/// it. More than two lines side by side are stripes.
void joinBroadPairs(std::vector<Rule>& rules, const GraphicsParameters::Rules& limits) {
    std::vector<bool> isGone(rules.size(), false);
    for (std::size_t i = 0; i < rules.size(); ++i) {
        if (isGone[i])
            continue;
        const std::vector<std::size_t> before = broadTwins(rules, i, true, limits);
        const std::vector<std::size_t> after = broadTwins(rules, i, false, limits);
        if (before.empty() == after.empty())
            continue;
        const bool isBefore = after.empty();
        const std::vector<std::size_t>& twins = isBefore ? before : after;
        const auto isOfStripes = [&](std::size_t j) {
            return isGone[j] || !broadTwins(rules, j, isBefore, limits).empty();
        };
        if (std::any_of(twins.begin(), twins.end(), isOfStripes))
            continue;
        makeDouble(rules[i], rules[twins.front()]);
        for (const std::size_t j : twins)
            isGone[j] = true;
    }
    eraseGone(rules, isGone);
}

/// Close pairs become one double rule in their middle.
void joinPairs(std::vector<Rule>& rules, const GraphicsParameters::Rules& limits) {
    std::vector<bool> isGone(rules.size(), false);
    for (std::size_t i = 0; i < rules.size(); ++i) {
        if (isGone[i])
            continue;
        for (std::size_t j = i + 1; j < rules.size() && j - i <= limits.pairReach; ++j) {
            if (isGone[j] || !isPair(rules[i], rules[j], limits))
                continue;
            makeDouble(rules[i], rules[j]);
            isGone[j] = true;
            break;
        }
    }
    eraseGone(rules, isGone);
}

} // namespace

void mergeRules(std::vector<Rule>& rules, const GraphicsParameters& parameters) {
    const GraphicsParameters::Rules& limits = parameters.rules;
    sortByPosition(rules);
    rules = joinCollinear(rules, limits);
    sortByPosition(rules);
    joinPairs(rules, limits);
    sortByPosition(rules);
    joinBroadPairs(rules, limits);
    sortByPosition(rules);
}

} // namespace orvane::layout
