#include "layout/running/RepeatedRules.h"

#include "layout/running/PageFrame.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

/// A rule between an edge of its page and the text.
struct EdgeRule {
    PageEdge edge = PageEdge::Top;
    const Rule* rule = nullptr;
};

class RuleComparer {
public:
    RuleComparer(const std::vector<PageText>& pages, const std::vector<BodyRange>& bodies,
                 const RunningParameters::RunningHeads& limits)
        : m_bodies(bodies)
        , m_limits(limits) {
        for (std::size_t page = 0; page < pages.size(); ++page)
            m_rules.push_back(edgeRules(pages[page], bodies[page]));
    }

    /// All that enough pages have, each once.
    std::vector<RepeatedRule> find() const {
        std::vector<RepeatedRule> found;
        std::vector<const Rule*> seen;
        for (const std::vector<EdgeRule>& rules : m_rules)
            for (const EdgeRule& candidate : rules) {
                if (std::any_of(seen.begin(), seen.end(),
                                [&](const Rule* other) { return isSamePlace(*other, *candidate.rule, m_limits); }))
                    continue;
                seen.push_back(candidate.rule);
                if (auto repeated = withPages(candidate))
                    found.push_back(std::move(*repeated));
            }
        return found;
    }

private:
    std::vector<EdgeRule> edgeRules(const PageText& page, const BodyRange& body) const {
        std::vector<EdgeRule> rules;
        const double reach = m_limits.firstReach * page.height;
        for (const Rule& rule : page.rules) {
            if (rule.direction != RuleDirection::Horizontal || rule.isUsed)
                continue;
            if (rule.position < reach && rule.position <= body.top)
                rules.push_back({PageEdge::Top, &rule});
            else if (rule.position > page.height - reach && rule.position >= body.bottom)
                rules.push_back({PageEdge::Bottom, &rule});
        }
        if (rules.size() > m_limits.mostEdgeRules)
            return {}; // a drawing
        std::erase_if(rules, [&](const EdgeRule& candidate) { return isOfTable(page, *candidate.rule); });
        for (const Rule* side : findPageFrame(page, body, m_limits))
            rules.push_back({PageEdge::Top, side});
        return rules;
    }

    /// Whether upright rules meet it: a table that goes on from page to page starts with a rule as well.
    bool isOfTable(const PageText& page, const Rule& rule) const {
        const double slack = m_limits.samePosition;
        return std::any_of(page.rules.begin(), page.rules.end(), [&](const Rule& other) {
            return other.direction == RuleDirection::Vertical && other.from <= rule.position + slack &&
                   other.to >= rule.position - slack && other.position >= rule.from - slack &&
                   other.position <= rule.to + slack;
        });
    }

    /// The rule with the pages that have it; nothing where they are too few, or where others have text beyond it.
    std::optional<RepeatedRule> withPages(const EdgeRule& candidate) const {
        RepeatedRule found{candidate.edge, *candidate.rule, std::vector<bool>(m_rules.size(), false)};
        int count = 0, passed = 0;
        for (std::size_t page = 0; page < m_rules.size(); ++page) {
            found.pages[page] = hasRule(page, candidate);
            count += found.pages[page];
            passed += !found.pages[page] && hasTextBeyond(page, candidate);
        }
        const bool isUsual =
            count >= m_limits.surePages && count >= m_limits.ruleShare * static_cast<double>(m_rules.size());
        return isUsual && passed <= m_limits.textShare * count ? std::optional(std::move(found)) : std::nullopt;
    }

    bool hasRule(std::size_t page, const EdgeRule& candidate) const {
        return std::any_of(m_rules[page].begin(), m_rules[page].end(), [&](const EdgeRule& other) {
            return other.edge == candidate.edge && isSamePlace(*other.rule, *candidate.rule, m_limits);
        });
    }

    bool hasTextBeyond(std::size_t page, const EdgeRule& candidate) const {
        if (candidate.rule->direction == RuleDirection::Vertical)
            return false;
        const BodyRange& body = m_bodies[page];
        const double position = candidate.rule->position;
        return body.top < body.bottom &&
               (candidate.edge == PageEdge::Top ? body.top < position - m_limits.samePosition
                                                : body.bottom > position + m_limits.samePosition);
    }

    const std::vector<BodyRange>& m_bodies;
    const RunningParameters::RunningHeads& m_limits;
    std::vector<std::vector<EdgeRule>> m_rules; ///< of each page
};

} // namespace

bool isSamePlace(const Rule& rule, const Rule& other, const RunningParameters::RunningHeads& parameters) {
    const double tolerance = parameters.samePosition;
    return rule.direction == other.direction && std::abs(rule.position - other.position) <= tolerance &&
           std::abs(rule.from - other.from) <= tolerance && std::abs(rule.to - other.to) <= tolerance;
}

std::vector<RepeatedRule> findRepeatedRules(const std::vector<PageText>& pages, const std::vector<BodyRange>& bodies,
                                            const RunningParameters::RunningHeads& parameters) {
    return RuleComparer(pages, bodies, parameters).find();
}

} // namespace orvane::layout
