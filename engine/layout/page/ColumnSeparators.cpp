#include "layout/page/ColumnSeparators.h"

#include <algorithm>
#include <cstddef>

namespace orvane::layout {
namespace {

/// Whether the rule stands between two columns and reaches over the band.
bool parts(const Rule& rule, const Band& band, std::size_t column, const PageParameters::Separators& parameters) {
    return rule.direction == RuleDirection::Vertical && !rule.isUsed && rule.width <= parameters.thickest &&
           rule.position > band.columns[column].right - parameters.slack &&
           rule.position < band.columns[column + 1].left + parameters.slack &&
           overlap(rule.from, rule.to, band.top, band.bottom) >= parameters.leastShare * (band.bottom - band.top);
}

/// The rule behind each column but the last; fewer where one is missing.
std::vector<std::size_t> separatorsOf(const Band& band, const std::vector<Rule>& rules,
                                      const PageParameters::Separators& parameters) {
    std::vector<std::size_t> separators;
    for (std::size_t column = 0; column + 1 < band.columns.size(); ++column) {
        const auto rule =
            std::find_if(rules.begin(), rules.end(), [&](const Rule& r) { return parts(r, band, column, parameters); });
        if (rule == rules.end())
            break;
        separators.push_back(static_cast<std::size_t>(rule - rules.begin()));
    }
    return separators;
}

} // namespace

void findColumnSeparators(std::vector<Band>& bands, std::vector<Rule>& rules,
                          const PageParameters::Separators& parameters) {
    std::vector<double> reached(rules.size());
    for (Band& band : bands) {
        if (band.columns.size() < 2 || band.bottom - band.top < parameters.lowestBand)
            continue;
        const std::vector<std::size_t> separators = separatorsOf(band, rules, parameters);
        if (separators.size() + 1 != band.columns.size())
            continue;
        band.hasSeparator = true;
        for (const std::size_t rule : separators)
            reached[rule] += overlap(rules[rule].from, rules[rule].to, band.top, band.bottom);
    }
    // What reaches far beyond the columns is drawn as it stands.
    for (std::size_t i = 0; i < rules.size(); ++i)
        rules[i].isUsed |= reached[i] > 0 && reached[i] >= parameters.insideShare * (rules[i].to - rules[i].from);
}

} // namespace orvane::layout
