#include "layout/graphics/BroadRules.h"

#include "layout/support/BoxIndex.h"
#include "layout/text/RuleBox.h"

#include <algorithm>
#include <optional>

namespace orvane::layout {
namespace {

bool mayBeRule(const Ground& ground, const GraphicsParameters::Rules& limits) {
    const double thickness = std::min(ground.box.width(), ground.box.height());
    const double length = std::max(ground.box.width(), ground.box.height());
    return thickness > limits.thickest && thickness <= limits.broadest && length >= limits.slenderness * thickness &&
           ground.color != kWhite && ground.opacity >= 1 && !ground.gradient;
}

Rule ruleOf(const Ground& ground) {
    Rule rule;
    const Rect& box = ground.box;
    const bool isLevel = box.width() >= box.height();
    rule.direction = isLevel ? RuleDirection::Horizontal : RuleDirection::Vertical;
    rule.position = isLevel ? box.centerY() : box.centerX();
    rule.from = isLevel ? box.left : box.top;
    rule.to = isLevel ? box.right : box.bottom;
    rule.width = isLevel ? box.height() : box.width();
    rule.color = ground.color;
    rule.paintOrder = ground.paintOrder;
    return rule;
}

/// The part of the rule around one of its ends.
Rect aroundEnd(const Rule& rule, double end, double slack) {
    Rule tip = rule;
    tip.from = tip.to = end;
    return boxOf(tip).inflated(slack);
}

/// Rules and bars, and which of them meet at the ends of a bar.
class BroadGrid {
public:
    BroadGrid(const std::vector<Rule>& rules, const GraphicsParameters::Rules& limits)
        : m_rules(rules)
        , m_limits(limits)
        , m_index(limits.indexStep) {
        for (std::size_t i = 0; i < rules.size(); ++i)
            m_index.add(boxOf(rules[i]), i);
    }

    /// The broadest rule of the same colour across an end.
    std::optional<std::size_t> ruleAcross(const Rule& bar, double end) const {
        std::optional<std::size_t> broadest;
        m_index.visit(aroundEnd(bar, end, m_limits.joinGap), [&](std::size_t i) {
            const Rule& other = m_rules[i];
            if (other.direction != bar.direction && other.color == bar.color &&
                (!broadest || other.width > m_rules[*broadest].width))
                broadest = i;
        });
        return broadest;
    }

    bool leadsFromRuleToRule(const Rule& bar) const {
        const auto first = ruleAcross(bar, bar.from), last = ruleAcross(bar, bar.to);
        return first && last &&
               std::max(m_rules[*first].width, m_rules[*last].width) >= bar.width - m_limits.widthChange;
    }

    Rule toTheMiddles(Rule rule) const {
        if (const auto across = ruleAcross(rule, rule.from))
            rule.from = std::min(rule.from, m_rules[*across].position);
        if (const auto across = ruleAcross(rule, rule.to))
            rule.to = std::max(rule.to, m_rules[*across].position);
        return rule;
    }

private:
    const std::vector<Rule>& m_rules;
    const GraphicsParameters::Rules& m_limits;
    BoxIndex m_index;
};

} // namespace

void takeBroadRules(std::vector<Rule>& rules, std::vector<Ground>& grounds, const GraphicsParameters::Rules& limits) {
    std::vector<Rule> all = rules;
    for (const Ground& ground : grounds)
        if (mayBeRule(ground, limits))
            all.push_back(ruleOf(ground));
    const auto isBroad = [&](const Rule& rule) { return rule.width > limits.thickest; };
    if (std::none_of(all.begin(), all.end(), isBroad))
        return;
    const BroadGrid grid(all, limits);
    for (Rule& rule : rules)
        if (isBroad(rule))
            rule = grid.toTheMiddles(rule);
    std::erase_if(grounds, [&](const Ground& ground) {
        const bool isRule = mayBeRule(ground, limits) && grid.leadsFromRuleToRule(ruleOf(ground));
        if (isRule)
            rules.push_back(grid.toTheMiddles(ruleOf(ground)));
        return isRule;
    });
}

} // namespace orvane::layout
