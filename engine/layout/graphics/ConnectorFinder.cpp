#include "layout/graphics/ConnectorFinder.h"

#include "layout/support/BoxGroups.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// The rule without its breadth.
Rect axisOf(const Rule& rule) {
    return rule.direction == RuleDirection::Horizontal ? Rect{rule.from, rule.position, rule.to, rule.position}
                                                       : Rect{rule.position, rule.from, rule.position, rule.to};
}

/// How often lines go on beyond each other on both sides.
std::size_t countCrossings(const std::vector<const Rule*>& rules, double touch, std::size_t enough) {
    std::size_t crossings = 0;
    for (const Rule* across : rules) {
        if (across->direction != RuleDirection::Horizontal)
            continue;
        for (const Rule* upright : rules) {
            crossings += upright->direction == RuleDirection::Vertical && upright->position > across->from + touch &&
                         upright->position < across->to - touch && across->position > upright->from + touch &&
                         across->position < upright->to - touch;
            if (crossings > enough)
                return crossings;
        }
    }
    return crossings;
}

} // namespace

std::vector<ConnectedDrawings> findConnected(const std::vector<Figure>& drawings, const std::vector<Rule>& rules,
                                             const GraphicsParameters::Drawings& limits) {
    if (drawings.size() < 2)
        return {};
    BoxGroups groups(limits.touch);
    for (const Figure& drawing : drawings)
        groups.add(drawing.box);
    for (const Rule& rule : rules)
        groups.add(axisOf(rule));
    std::vector<ConnectedDrawings> found;
    for (const std::vector<std::size_t>& members : groups.groups()) {
        ConnectedDrawings connected;
        std::vector<const Rule*> lines;
        for (const std::size_t member : members) {
            if (member < drawings.size()) {
                connected.drawings.push_back(member);
                connected.box = connected.box.united(drawings[member].box);
                continue;
            }
            lines.push_back(&rules[member - drawings.size()]);
            connected.box = connected.box.united(axisOf(*lines.back()).inflated(limits.reach / 2));
        }
        const auto allowed =
            static_cast<std::size_t>(static_cast<double>(connected.drawings.size()) / limits.shapesACrossing);
        if (connected.drawings.size() >= 2 && countCrossings(lines, limits.touch, allowed) <= allowed)
            found.push_back(std::move(connected));
    }
    return found;
}

} // namespace orvane::layout
