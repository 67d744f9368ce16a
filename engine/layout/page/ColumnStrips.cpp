#include "layout/page/ColumnStrips.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

constexpr std::size_t kMostRules = 12; ///< long upright ones; where there are more, they belong to a drawing

bool isUpright(const Line& line) {
    return line.angle == 0 && !line.isVertical && !line.words.empty();
}

bool isWithin(const Rule& rule, double y) {
    return y >= rule.from && y <= rule.to;
}

/// Asks a long upright rule what it parts.
class StripRule {
public:
    StripRule(const Rule& rule, const PageText& page, const PageParameters::Separators& parameters)
        : m_rule(rule)
        , m_page(page)
        , m_parameters(parameters) {}

    bool isLong() const {
        return m_rule.direction == RuleDirection::Vertical && !m_rule.isUsed && m_rule.width <= m_parameters.thickest &&
               m_rule.to - m_rule.from >= m_parameters.pageShare * m_page.height;
    }

    bool partsColumns() const { return !isCrossed() && partsOtherLines(); }

    const Rule& rule() const { return m_rule; }

private:
    bool isOver(double left, double right) const {
        return left < m_rule.position - m_parameters.slack && right > m_rule.position + m_parameters.slack;
    }

    /// Whether words, rules, grounds or figures reach over the rule, as those of a table would.
    bool isCrossed() const {
        const auto isWordOver = [&](const Word& word) { return isOver(word.box.left, word.box.right); };
        return std::any_of(m_page.lines.begin(), m_page.lines.end(),
                           [&](const Line& line) {
                               return isUpright(line) && isWithin(m_rule, line.box.centerY()) &&
                                      std::any_of(line.words.begin(), line.words.end(), isWordOver);
                           }) ||
               std::any_of(m_page.rules.begin(), m_page.rules.end(),
                           [&](const Rule& rule) {
                               return rule.direction == RuleDirection::Horizontal && touches(rule) &&
                                      rule.position >= m_rule.from - m_parameters.touch &&
                                      rule.position <= m_rule.to + m_parameters.touch;
                           }) ||
               std::any_of(m_page.grounds.begin(), m_page.grounds.end(),
                           [&](const Ground& ground) {
                               return isOver(ground.box.left, ground.box.right) &&
                                      isWithin(m_rule, ground.box.centerY()) &&
                                      ground.box.height() < m_rule.to - m_rule.from;
                           }) ||
               std::any_of(m_page.figures.begin(), m_page.figures.end(), [&](const Figure& figure) {
                   return !figure.isBackground && isOver(figure.box.left, figure.box.right) &&
                          isWithin(m_rule, figure.box.centerY());
               });
    }

    /// Strokes no longer than the rule is thick are its ends.
    bool touches(const Rule& rule) const {
        const double reach = m_parameters.touch;
        return rule.from <= m_rule.position + reach && rule.to >= m_rule.position - reach &&
               rule.to - rule.from > 2 * reach;
    }

    /// Whether text at both sides stands in lines of its own: those of a table stand side by side.
    bool partsOtherLines() const {
        std::vector<double> left, right;
        for (const Line& line : m_page.lines) {
            if (!isUpright(line) || !isWithin(m_rule, line.box.centerY()))
                continue;
            if (line.box.left < m_rule.position)
                left.push_back(line.baseline);
            if (line.box.right > m_rule.position)
                right.push_back(line.baseline);
        }
        std::sort(left.begin(), left.end());
        std::sort(right.begin(), right.end());
        for (std::vector<double>* side : {&left, &right})
            side->erase(std::unique(side->begin(), side->end(), [&](double a, double b) { return isSame(a, b); }),
                        side->end());
        const std::size_t fewest = std::min(left.size(), right.size());
        return fewest >= m_parameters.fewestLines &&
               static_cast<double>(countShared(left, right)) <= m_parameters.sharedLines * static_cast<double>(fewest);
    }

    bool isSame(double a, double b) const { return std::abs(a - b) <= m_parameters.sameBaseline; }

    std::size_t countShared(const std::vector<double>& left, const std::vector<double>& right) const {
        return static_cast<std::size_t>(std::count_if(left.begin(), left.end(), [&](double baseline) {
            const auto near = std::lower_bound(right.begin(), right.end(), baseline - m_parameters.sameBaseline);
            return near != right.end() && isSame(*near, baseline);
        }));
    }

    const Rule& m_rule;
    const PageText& m_page;
    const PageParameters::Separators& m_parameters;
};

/// The words of the line in the strip; without words where there are none.
Line partOf(const Line& line, const ColumnStrip& strip) {
    Line part = line;
    std::erase_if(part.words, [&](const Word& word) { return !strip.holds(word.box); });
    if (part.words.empty())
        return part;
    part.words.front().gapBefore = Gap::None;
    part.words.front().leaderBefore = document::TabLeader::None;
    measureAnew(part);
    return part;
}

} // namespace

std::vector<ColumnStrip> findColumnStrips(const PageText& page, const LayoutParameters& parameters) {
    std::vector<StripRule> rules;
    for (const Rule& rule : page.rules)
        if (const StripRule asked(rule, page, parameters.separators); asked.isLong())
            rules.push_back(asked);
    if (rules.size() > kMostRules)
        return {};
    double top = page.height;
    double bottom = 0;
    std::vector<double> edges;
    for (const StripRule& asked : rules) {
        if (!asked.partsColumns())
            continue;
        top = std::min(top, asked.rule().from);
        bottom = std::max(bottom, asked.rule().to);
        edges.push_back(asked.rule().position);
    }
    if (edges.empty())
        return {};
    std::sort(edges.begin(), edges.end());
    edges.push_back(page.width);
    std::vector<ColumnStrip> strips;
    double left = 0;
    for (const double edge : edges) {
        // One that is drawn twice parts no more than one does.
        if (edge - left <= parameters.separators.touch)
            continue;
        strips.push_back({left, edge, top, bottom});
        left = edge;
    }
    return strips;
}

bool leadsOver(std::span<const ColumnStrip> strips, const Rect& box) {
    return std::any_of(strips.begin(), strips.end(), [&](const ColumnStrip& strip) {
        return strip.holds(box) && (box.left < strip.left || box.right > strip.right);
    });
}

void cutAtStrips(std::vector<Line>& lines, std::span<const ColumnStrip> strips) {
    std::vector<Line> cut;
    for (Line& line : lines) {
        const bool isInOne = std::any_of(strips.begin(), strips.end(), [&](const ColumnStrip& strip) {
            return std::all_of(line.words.begin(), line.words.end(),
                               [&](const Word& word) { return strip.holds(word.box); });
        });
        const bool isInAny =
            std::any_of(strips.begin(), strips.end(), [&](const ColumnStrip& strip) { return strip.holds(line.box); });
        if (!isUpright(line) || isInOne || !isInAny) {
            cut.push_back(std::move(line));
            continue;
        }
        for (const ColumnStrip& strip : strips)
            if (Line part = partOf(line, strip); !part.words.empty())
                cut.push_back(std::move(part));
    }
    lines = std::move(cut);
}

} // namespace orvane::layout
