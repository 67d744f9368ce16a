#include "layout/tables/CheckBoxes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

/// The rules of one direction by position.
using SortedRules = std::vector<std::size_t>;

class CheckBoxMarker {
public:
    CheckBoxMarker(const std::vector<Rule>& rules, const TableParameters::Tables& parameters)
        : m_rules(rules)
        , m_parameters(parameters)
        , m_isOfBox(rules.size(), 0) {
        for (std::size_t i = 0; i < rules.size(); ++i)
            if (!rules[i].isUsed)
                (rules[i].direction == RuleDirection::Horizontal ? m_horizontal : m_vertical).push_back(i);
        for (SortedRules* sorted : {&m_horizontal, &m_vertical})
            std::sort(sorted->begin(), sorted->end(),
                      [&](std::size_t a, std::size_t b) { return rules[a].position < rules[b].position; });
    }

    std::vector<char> mark() {
        for (const std::size_t left : m_vertical)
            if (!m_isOfBox[left])
                markBoxesAt(left);
        return std::move(m_isOfBox);
    }

private:
    bool isNear(double a, double b) const { return std::abs(a - b) <= m_parameters.checkBoxSnap; }

    /// Calls `visit(i)` for the rules of `sorted` at positions from `least` to `most`, until it returns true.
    template<typename Visitor>
    void visit(const SortedRules& sorted, double least, double most, const Visitor& visit) const {
        auto it = std::lower_bound(sorted.begin(), sorted.end(), least,
                                   [&](std::size_t i, double value) { return m_rules[i].position < value; });
        for (; it != sorted.end() && m_rules[*it].position <= most; ++it)
            if (visit(*it))
                return;
    }

    /// The rule beside `left` that closes boxes with it.
    std::optional<std::size_t> findRight(const Rule& left) const {
        std::optional<std::size_t> right;
        visit(m_vertical, left.position + m_parameters.smallestCheckBox, left.position + m_parameters.largestCheckBox,
              [&](std::size_t i) {
                  if (isNear(m_rules[i].from, left.from) && isNear(m_rules[i].to, left.to))
                      right = i;
                  return right.has_value();
              });
        return right;
    }

    /// The rules from `left` to `right`, from the top of these to their bottom.
    SortedRules findRungs(const Rule& left, const Rule& right) const {
        SortedRules rungs;
        visit(m_horizontal, left.from - m_parameters.checkBoxSnap, left.to + m_parameters.checkBoxSnap,
              [&](std::size_t i) {
                  if (isNear(m_rules[i].from, left.position) && isNear(m_rules[i].to, right.position))
                      rungs.push_back(i);
                  return false;
              });
        return rungs;
    }

    /// Whether a rule goes on beyond an end of `side`, as those of a grid do.
    bool goesOn(const SortedRules& sorted, const Rule& side) const {
        const double touch = m_parameters.checkBoxTouch;
        bool isFound = false;
        visit(sorted, side.position - touch, side.position + touch, [&](std::size_t i) {
            const Rule& rule = m_rules[i];
            const bool reachesBefore = rule.from < side.from - touch && rule.to >= side.from - touch;
            const bool reachesBehind = rule.to > side.to + touch && rule.from <= side.to + touch;
            return isFound = reachesBefore || reachesBehind;
        });
        return isFound;
    }

    /// Whether the rungs close boxes between `from` and `to`. A box may stand on the rule of its row, or hang from it:
    /// then a rung is missing at that end.
    bool closeBoxes(const SortedRules& rungs, double from, double to) const {
        double last = from;
        for (const std::size_t rung : rungs) {
            if (m_rules[rung].position - last > m_parameters.largestCheckBox)
                return false;
            last = m_rules[rung].position;
        }
        return !rungs.empty() && to - last <= m_parameters.largestCheckBox;
    }

    void markBoxesAt(std::size_t leftIndex) {
        const Rule& left = m_rules[leftIndex];
        const auto right = left.to - left.from < m_parameters.smallestCheckBox ? std::nullopt : findRight(left);
        if (!right)
            return;
        const double width = m_rules[*right].position - left.position;
        const SortedRules rungs = findRungs(left, m_rules[*right]);
        // One box is a square; several one below the other share their sides.
        const bool isSquare = isNear(left.to - left.from, width);
        const bool areBoxes = isSquare || (rungs.size() > 2 && closeBoxes(rungs, left.from, left.to));
        if (!areBoxes || rungs.empty())
            return;
        const bool isAlone = !goesOn(m_vertical, left) && !goesOn(m_vertical, m_rules[*right]) &&
                             std::any_of(rungs.begin(), rungs.end(),
                                         [&](std::size_t rung) { return !goesOn(m_horizontal, m_rules[rung]); });
        if (!isAlone)
            return;
        m_isOfBox[leftIndex] = m_isOfBox[*right] = 1;
        for (const std::size_t rung : rungs)
            m_isOfBox[rung] = 1;
    }

    const std::vector<Rule>& m_rules;
    const TableParameters::Tables& m_parameters;
    std::vector<char> m_isOfBox;
    SortedRules m_horizontal;
    SortedRules m_vertical;
};

} // namespace

std::vector<char> markCheckBoxes(const std::vector<Rule>& rules, const TableParameters::Tables& parameters) {
    return CheckBoxMarker(rules, parameters).mark();
}

} // namespace orvane::layout
