#include "layout/tables/BorderLines.h"

#include "layout/tables/CheckBoxes.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace orvane::layout {
namespace {

/// Grows one line rule by rule.
class LineMerger {
public:
    explicit LineMerger(RuleDirection direction) { m_line.direction = direction; }

    void add(const Rule& rule, std::size_t index, double from, double to) {
        const double length = to - from;
        if (!m_line.rules.empty() && std::abs(rule.position - m_last->position) > (rule.width + m_last->width) / 2)
            m_doubledLength += overlap(from, to, m_last->from, m_last->to);
        m_weightedPosition += rule.position * length;
        m_weight += length;
        m_line.from = m_line.rules.empty() ? from : std::min(m_line.from, from);
        m_line.to = m_line.rules.empty() ? to : std::max(m_line.to, to);
        m_line.rules.push_back(index);
        m_last = &rule;
    }
    bool isEmpty() const { return m_line.rules.empty(); }
    double end() const { return m_line.to; }

    BorderLine finish(double doubledShare) {
        m_line.position = m_weight > 0 ? m_weightedPosition / m_weight : m_last->position;
        m_line.isDouble = m_doubledLength > doubledShare * m_line.length();
        return std::move(m_line);
    }

private:
    BorderLine m_line;
    const Rule* m_last = nullptr;
    double m_weightedPosition = 0;
    double m_weight = 0;
    double m_doubledLength = 0;
};

/// Joins the rules of one position, [first, last) of `order`, where they touch or overlap.
void mergeGroup(const std::vector<Rule>& rules, std::vector<std::size_t>::iterator first,
                std::vector<std::size_t>::iterator last, const TableParameters::Tables& parameters,
                std::vector<BorderLine>& lines) {
    std::sort(first, last, [&](std::size_t a, std::size_t b) {
        return std::tie(rules[a].from, rules[a].position, a) < std::tie(rules[b].from, rules[b].position, b);
    });
    const RuleDirection direction = rules[*first].direction;
    LineMerger merger(direction);
    const auto finish = [&] {
        BorderLine line = merger.finish(parameters.doubledShare);
        if (line.length() >= parameters.minimumLineLength)
            lines.push_back(std::move(line));
    };
    for (auto it = first; it != last; ++it) {
        const Rule& rule = rules[*it];
        if (!merger.isEmpty() && rule.from > merger.end() + parameters.joinGap) {
            finish();
            merger = LineMerger(direction);
        }
        merger.add(rule, *it, rule.from, rule.to);
    }
    finish();
}

/// Lets lines that end before a broad double one end in its middle: where double rules meet they leave gaps, which are
/// as broad as they are.
void meetBroadLines(std::vector<BorderLine>& lines, const std::vector<Rule>& rules,
                    const TableParameters::Tables& parameters) {
    for (const BorderLine& broad : lines) {
        const Rule& drawn = rules[broad.rules.front()];
        if (drawn.kind != document::BorderKind::Double || drawn.width <= parameters.joinGap)
            continue;
        const double reach = drawn.width + parameters.joinGap;
        for (BorderLine& line : lines) {
            if (line.direction == broad.direction || line.position < broad.from - reach ||
                line.position > broad.to + reach)
                continue;
            if (std::abs(line.from - broad.position) <= reach)
                line.from = std::min(line.from, broad.position);
            if (std::abs(line.to - broad.position) <= reach)
                line.to = std::max(line.to, broad.position);
        }
    }
}

} // namespace

std::vector<BorderLine> collectBorderLines(const std::vector<Rule>& rules, const TableParameters::Tables& parameters) {
    const std::vector<char> isOfCheckBox = markCheckBoxes(rules, parameters);
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < rules.size(); ++i)
        if (!rules[i].isUsed && !isOfCheckBox[i])
            order.push_back(i);
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return std::tie(rules[a].direction, rules[a].position, a) < std::tie(rules[b].direction, rules[b].position, b);
    });
    std::vector<BorderLine> lines;
    for (auto first = order.begin(); first != order.end();) {
        const auto last = std::find_if(first, order.end(), [&](std::size_t i) {
            return rules[i].direction != rules[*first].direction ||
                   rules[i].position > rules[*first].position + parameters.lineSnap;
        });
        mergeGroup(rules, first, last, parameters, lines);
        first = last;
    }
    meetBroadLines(lines, rules, parameters);
    return lines;
}

BorderLine undrawnLine(RuleDirection direction, double position, double from, double to) {
    BorderLine line;
    line.direction = direction;
    line.position = position;
    line.from = from;
    line.to = to;
    return line;
}

void addLines(std::vector<BorderLine>& lines, std::vector<BorderLine> added) {
    for (BorderLine& line : added) {
        const auto place = std::find_if(lines.begin(), lines.end(), [&](const BorderLine& other) {
            return other.direction == line.direction ? other.position > line.position
                                                     : line.direction == RuleDirection::Horizontal;
        });
        lines.insert(place, std::move(line));
    }
}

document::Border borderAlong(const std::vector<Rule>& rules, const std::vector<BorderLine>& lines, const CellSide& side,
                             double cover, const TableParameters::Tables& parameters) {
    // The side takes the look that covers most of it.
    std::map<std::size_t, double> coverByRule;
    double covered = 0;
    bool isDouble = false;
    const auto shared = [&](double from, double to) {
        return std::max(0.0, overlap(from - parameters.joinGap, to + parameters.joinGap, side.from, side.to));
    };
    for (const BorderLine& line : lines) {
        if (line.direction != side.direction || std::abs(line.position - side.position) > parameters.lineSnap)
            continue;
        // One that only ends near a short side is none of it.
        if (overlap(line.from, line.to, side.from, side.to) <= 0)
            continue;
        isDouble = isDouble || line.isDouble;
        covered += shared(line.from, line.to);
        for (const std::size_t index : line.rules)
            coverByRule[index] += shared(rules[index].from, rules[index].to);
    }
    document::Border border;
    if (coverByRule.empty() || covered < cover * (side.to - side.from))
        return border;
    const auto widest = std::max_element(coverByRule.begin(), coverByRule.end(),
                                         [](const auto& a, const auto& b) { return a.second < b.second; });
    const Rule& rule = rules[widest->first];
    border.kind = isDouble ? document::BorderKind::Double : rule.kind;
    // A double border's width is that of each of its lines, and of the gap between them.
    const double width = rule.kind == document::BorderKind::Double ? rule.width / 3 : rule.width;
    border.width = std::max(EighthPoints(2), eighthPointsFromPoints(width));
    border.color = rule.color;
    return border;
}

} // namespace orvane::layout
