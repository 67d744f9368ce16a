#include "layout/graphics/ChartFrames.h"

#include "layout/graphics/ChartLabels.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

/// The rules of one direction by their position.
class SortedRules {
public:
    SortedRules(const std::vector<Rule>& rules, RuleDirection direction, double tolerance)
        : m_tolerance(tolerance) {
        for (const Rule& rule : rules)
            if (rule.direction == direction && !rule.isUsed)
                m_rules.push_back(&rule);
        std::sort(m_rules.begin(), m_rules.end(),
                  [](const Rule* a, const Rule* b) { return a->position < b->position; });
    }

    const std::vector<const Rule*>& all() const { return m_rules; }

    /// The rule at a position that starts at `from`; at `to` it ends, if that is given.
    const Rule* find(double position, double from, std::optional<double> to = {}) const {
        auto rule = std::lower_bound(m_rules.begin(), m_rules.end(), position - m_tolerance,
                                     [](const Rule* r, double p) { return r->position < p; });
        for (; rule != m_rules.end() && (*rule)->position <= position + m_tolerance; ++rule)
            if (isNear((*rule)->from, from) && (!to || isNear((*rule)->to, *to)))
                return *rule;
        return nullptr;
    }

private:
    bool isNear(double a, double b) const { return std::abs(a - b) <= m_tolerance; }

    std::vector<const Rule*> m_rules;
    double m_tolerance;
};

} // namespace

std::vector<Rect> findChartFrames(const PageText& text, const GraphicsParameters::Charts& limits) {
    const SortedRules levels(text.rules, RuleDirection::Horizontal, limits.sameCorner);
    const SortedRules uprights(text.rules, RuleDirection::Vertical, limits.sameCorner);
    const ChartLabels labels(text, limits);
    std::vector<Rect> frames;
    for (const Rule* top : levels.all()) {
        const Rule* left = uprights.find(top->from, top->position);
        const Rule* right = left ? uprights.find(top->to, top->position, left->to) : nullptr;
        if (!right || !levels.find(left->to, top->from, top->to))
            continue;
        const Rect frame{top->from, top->position, top->to, left->to};
        if (std::min(frame.width(), frame.height()) >= limits.smallest && labels.boxOf(frame))
            frames.push_back(frame);
    }
    return frames;
}

} // namespace orvane::layout
