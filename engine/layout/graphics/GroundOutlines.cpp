#include "layout/graphics/GroundOutlines.h"

#include "layout/support/BoxIndex.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane::layout {
namespace {

Rect boxOf(const Rule& rule) {
    return rule.direction == RuleDirection::Horizontal ? Rect{rule.from, rule.position, rule.to, rule.position}
                                                       : Rect{rule.position, rule.from, rule.position, rule.to};
}

/// Which side of a box the rule lies along from end to end; none is -1.
int sideOf(const Rule& rule, const Rect& box, double slack) {
    const bool isLevel = rule.direction == RuleDirection::Horizontal;
    const double near = isLevel ? box.top : box.left, far = isLevel ? box.bottom : box.right;
    const double from = isLevel ? box.left : box.top, to = isLevel ? box.right : box.bottom;
    if (std::abs(rule.from - from) > slack || std::abs(rule.to - to) > slack)
        return -1;
    const int first = isLevel ? 0 : 2;
    if (std::abs(rule.position - near) <= slack)
        return first;
    return std::abs(rule.position - far) <= slack ? first + 1 : -1;
}

/// The rules along the four sides of the ground in its colour; empty unless there is one along each, and no other rule
/// at the ground.
std::vector<std::size_t> outlineOf(const Ground& ground, const std::vector<Rule>& rules, const BoxIndex& index,
                                   double slack) {
    std::array<bool, 4> hasSide{};
    std::vector<std::size_t> outline;
    bool isTouched = false;
    index.visit(ground.box.inflated(slack), [&](std::size_t i) {
        const int side = rules[i].color == ground.color ? sideOf(rules[i], ground.box, slack) : -1;
        if (side < 0) {
            isTouched = true;
            return;
        }
        hasSide[static_cast<std::size_t>(side)] = true;
        outline.push_back(i);
    });
    if (isTouched || !std::all_of(hasSide.begin(), hasSide.end(), [](bool has) { return has; }))
        outline.clear();
    return outline;
}

} // namespace

void dropGroundOutlines(std::vector<Rule>& rules, const std::vector<Ground>& grounds,
                        const GraphicsParameters::Rules& parameters) {
    BoxIndex index(parameters.indexStep);
    for (std::size_t i = 0; i < rules.size(); ++i)
        index.add(boxOf(rules[i]), i);
    std::vector<bool> isUnseen(rules.size(), false);
    for (const Ground& ground : grounds)
        for (const std::size_t i : outlineOf(ground, rules, index, parameters.outlineSlack))
            isUnseen[i] = true;
    std::size_t next = 0;
    std::erase_if(rules, [&](const Rule&) { return isUnseen[next++]; });
}

} // namespace orvane::layout
