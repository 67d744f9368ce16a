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
            if (isSide(m_rules[left]) && !m_isOfBox[left])
                markBoxAt(left);
        return std::move(m_isOfBox);
    }

private:
    bool isSide(const Rule& rule) const {
        const double length = rule.to - rule.from;
        return length >= m_parameters.smallestCheckBox && length <= m_parameters.largestCheckBox;
    }

    bool isNear(double a, double b) const { return std::abs(a - b) <= m_parameters.checkBoxSnap; }

    /// The first rule of `sorted`, at a position from `least` to `most`, for which `accepts` says yes.
    template<typename Predicate>
    std::optional<std::size_t> find(const SortedRules& sorted, double least, double most,
                                    const Predicate& accepts) const {
        auto it = std::lower_bound(sorted.begin(), sorted.end(), least,
                                   [&](std::size_t i, double value) { return m_rules[i].position < value; });
        for (; it != sorted.end() && m_rules[*it].position <= most; ++it)
            if (accepts(m_rules[*it]))
                return *it;
        return std::nullopt;
    }

    /// The rule that lies at `position` and runs from `from` to `to`.
    std::optional<std::size_t> findSide(const SortedRules& sorted, double position, double from, double to) const {
        return find(sorted, position - m_parameters.checkBoxSnap, position + m_parameters.checkBoxSnap,
                    [&](const Rule& rule) { return isSide(rule) && isNear(rule.from, from) && isNear(rule.to, to); });
    }

    /// Whether a rule goes on beyond an end of `side`, as those of a grid do.
    bool goesOn(const SortedRules& sorted, const Rule& side) const {
        const double touch = m_parameters.checkBoxTouch;
        return find(sorted, side.position - touch, side.position + touch,
                    [&](const Rule& rule) {
                        const bool reachesBefore = rule.from < side.from - touch && rule.to >= side.from - touch;
                        const bool reachesBehind = rule.to > side.to + touch && rule.from <= side.to + touch;
                        return reachesBefore || reachesBehind;
                    })
            .has_value();
    }

    void markBoxAt(std::size_t leftIndex) {
        const Rule& left = m_rules[leftIndex];
        const double height = left.to - left.from;
        const auto right = findSide(m_vertical, left.position + height, left.from, left.to);
        if (!right || *right == leftIndex)
            return;
        const auto top = findSide(m_horizontal, left.from, left.position, m_rules[*right].position);
        const auto bottom = findSide(m_horizontal, left.to, left.position, m_rules[*right].position);
        if (!top && !bottom)
            return;
        // A box may stand on the rule of its row, or hang from it: one side is its own at least.
        const bool isAlone =
            !goesOn(m_vertical, left) && !goesOn(m_vertical, m_rules[*right]) &&
            ((top && !goesOn(m_horizontal, m_rules[*top])) || (bottom && !goesOn(m_horizontal, m_rules[*bottom])));
        if (!isAlone)
            return;
        for (const auto& side : {std::optional(leftIndex), right, top, bottom})
            if (side)
                m_isOfBox[*side] = 1;
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
