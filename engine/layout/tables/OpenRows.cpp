#include "layout/tables/OpenRows.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

/// Short lines side by side with their ends at one height, by position.
using Dividers = std::vector<const BorderLine*>;

class OpenRowFinder {
public:
    OpenRowFinder(const std::vector<BorderLine>& lines, const std::vector<Line>& text,
                  const TableParameters::Tables& parameters)
        : m_text(text)
        , m_parameters(parameters) {
        for (const BorderLine& line : lines)
            (line.direction == RuleDirection::Horizontal ? m_horizontal : m_vertical).push_back(&line);
    }

    std::vector<BorderLine> find() const {
        std::vector<BorderLine> tops;
        for (const Dividers& dividers : groupByEnds())
            if (const auto top = topOf(dividers))
                tops.push_back(*top);
        return tops;
    }

private:
    bool isNear(double a, double b) const { return std::abs(a - b) <= m_parameters.borderReach; }

    /// Cuts `lines` where the next one's end, `end` of it, lies elsewhere.
    std::vector<Dividers> partBy(double BorderLine::*end, Dividers lines) const {
        std::stable_sort(lines.begin(), lines.end(),
                         [&](const BorderLine* a, const BorderLine* b) { return a->*end < b->*end; });
        std::vector<Dividers> parts;
        for (const BorderLine* line : lines) {
            if (parts.empty() || !isNear(line->*end, parts.back().front()->*end))
                parts.emplace_back();
            parts.back().push_back(line);
        }
        return parts;
    }

    /// Lines of one extent, from left to right.
    std::vector<Dividers> groupByEnds() const {
        std::vector<Dividers> groups;
        for (const Dividers& level : partBy(&BorderLine::from, m_vertical))
            for (Dividers& group : partBy(&BorderLine::to, level)) {
                if (static_cast<int>(group.size()) < m_parameters.fewestDividers)
                    continue;
                std::sort(group.begin(), group.end(),
                          [](const BorderLine* a, const BorderLine* b) { return a->position < b->position; });
                groups.push_back(std::move(group));
            }
        return groups;
    }

    /// Whether a line runs along `y` over the stretch between the dividers.
    bool isDrawnAt(double y, const Dividers& dividers) const {
        auto line = std::lower_bound(m_horizontal.begin(), m_horizontal.end(), y - m_parameters.joinGap,
                                     [](const BorderLine* other, double least) { return other->position < least; });
        for (; line != m_horizontal.end() && (*line)->position <= y + m_parameters.joinGap; ++line)
            if (overlap((*line)->from, (*line)->to, dividers.front()->position, dividers.back()->position) > 0)
                return true;
        return false;
    }

    /// The nearest lines on both sides that go on above the dividers; no cell without them.
    std::optional<std::pair<double, double>> wallsOf(const Dividers& dividers) const {
        constexpr double kNone = std::numeric_limits<double>::max();
        double left = -kNone, right = kNone;
        const double top = dividers.front()->from - m_parameters.minimumCellSide;
        const double bottom = dividers.front()->to - m_parameters.joinGap;
        for (const BorderLine* line : m_vertical) {
            if (line->from > top || line->to < bottom)
                continue;
            if (line->position < dividers.front()->position)
                left = std::max(left, line->position);
            else if (line->position > dividers.back()->position)
                right = std::min(right, line->position);
            else
                return std::nullopt; // several cells
        }
        return left > -kNone && right < kNone ? std::optional(std::pair(left, right)) : std::nullopt;
    }

    /// Whether the word keeps off the dividers on both sides of it and is no value of a field, which is one text
    /// however its places are parted.
    bool fitsBetween(const Word& word, const Dividers& dividers, Dividers::const_iterator next, double slack) const {
        return word.spans.front().look.field < 0 &&
               (next == dividers.end() || word.box.right <= (*next)->position + slack) &&
               (next == dividers.begin() || word.box.left >= (*(next - 1))->position - slack);
    }

    /// Whether words stand between most of the dividers, none over one of them or over the row's upper edge.
    bool holdsWords(const Dividers& dividers, double left, double right) const {
        const double top = dividers.front()->from, bottom = dividers.front()->to;
        std::vector<bool> isFilled(dividers.size() + 1);
        for (const Line& line : m_text) {
            if (line.angle != 0 || line.baseline < top || line.baseline > bottom)
                continue;
            for (const Word& word : line.words) {
                const double middle = word.box.centerX();
                if (middle < left || middle > right)
                    continue;
                const auto next = std::find_if(dividers.begin(), dividers.end(),
                                               [&](const BorderLine* divider) { return divider->position > middle; });
                if (!fitsBetween(word, dividers, next, m_parameters.straddle * line.fontSize) ||
                    line.baseline - m_parameters.straddleHeight * line.fontSize < top)
                    return false;
                isFilled[static_cast<std::size_t>(next - dividers.begin())] = true;
            }
        }
        const auto between = static_cast<double>(dividers.size() - 1);
        const auto filled = static_cast<double>(std::count(isFilled.begin() + 1, isFilled.end() - 1, true));
        return filled > m_parameters.filledShare * between;
    }

    std::optional<BorderLine> topOf(const Dividers& dividers) const {
        const BorderLine& first = *dividers.front();
        if (isDrawnAt(first.from, dividers) || !isDrawnAt(first.to, dividers))
            return std::nullopt;
        const auto walls = wallsOf(dividers);
        if (!walls || !holdsWords(dividers, walls->first, walls->second))
            return std::nullopt;
        return undrawnLine(RuleDirection::Horizontal, first.from, walls->first, walls->second);
    }

    const std::vector<Line>& m_text;
    const TableParameters::Tables& m_parameters;
    Dividers m_horizontal; ///< both by position
    Dividers m_vertical;
};

} // namespace

std::vector<BorderLine> closeOpenRows(std::vector<BorderLine> lines, const std::vector<Line>& text,
                                      const TableParameters::Tables& parameters) {
    addLines(lines, OpenRowFinder(lines, text, parameters).find());
    return lines;
}

} // namespace orvane::layout
