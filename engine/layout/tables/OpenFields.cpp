#include "layout/tables/OpenFields.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// Points between the rule above a field and the next one of its length; farther apart they are of two forms.
constexpr double kTallestRow = 100;

class OpenFieldFinder {
public:
    OpenFieldFinder(const std::vector<BorderLine>& lines, const std::vector<Line>& text,
                    const TableParameters::Tables& parameters)
        : m_text(text)
        , m_parameters(parameters) {
        for (const BorderLine& line : lines)
            (line.direction == RuleDirection::Horizontal ? m_horizontal : m_vertical).push_back(&line);
    }

    std::vector<BorderLine> find() const {
        std::vector<BorderLine> added;
        for (std::size_t i = 0; i < m_horizontal.size(); ++i) {
            const BorderLine& top = *m_horizontal[i];
            const BorderLine* bottom = nextOfLength(i);
            const BorderLine* divider = bottom ? lastDivider(top, *bottom) : nullptr;
            if (!divider || !isClosedBefore(*divider, top) || !holdsWords(*divider, top))
                continue;
            added.push_back(undrawnLine(RuleDirection::Horizontal, divider->to, divider->position, top.to));
            for (const double side : {top.from, top.to})
                added.push_back(undrawnLine(RuleDirection::Vertical, side, top.position, bottom->position));
        }
        return added;
    }

private:
    using Lines = std::vector<const BorderLine*>;

    bool meets(double a, double b) const { return std::abs(a - b) <= m_parameters.joinGap; }

    /// The next line below that begins and ends where this one does.
    const BorderLine* nextOfLength(std::size_t index) const {
        const BorderLine& top = *m_horizontal[index];
        for (std::size_t i = index + 1; i < m_horizontal.size(); ++i) {
            const BorderLine& line = *m_horizontal[i];
            if (line.position > top.position + kTallestRow)
                break;
            if (meets(line.from, top.from) && meets(line.to, top.to))
                return line.position > top.position + m_parameters.minimumCellSide ? &line : nullptr;
        }
        return nullptr;
    }

    /// The upright line that hangs from the rule next to its end and does not reach the one below; null where that end
    /// is closed.
    const BorderLine* lastDivider(const BorderLine& top, const BorderLine& bottom) const {
        const BorderLine* last = nullptr;
        for (const BorderLine* line : m_vertical) {
            const bool isBetween = line->position > top.from + m_parameters.minimumCellSide &&
                                   line->from < bottom.position - m_parameters.joinGap &&
                                   line->to > top.position + m_parameters.joinGap;
            if (isBetween && line->position <= top.to + m_parameters.joinGap)
                last = line; // they are sorted by position
        }
        const bool hangs = last && meets(last->from, top.position) &&
                           last->position < top.to - m_parameters.minimumCellSide &&
                           last->to < bottom.position - m_parameters.minimumCellSide;
        return hangs ? last : nullptr;
    }

    /// Whether a line runs from the side where the rule begins to the foot of the divider.
    bool isClosedBefore(const BorderLine& divider, const BorderLine& top) const {
        return std::any_of(m_horizontal.begin(), m_horizontal.end(), [&](const BorderLine* line) {
            return meets(line->position, divider.to) && meets(line->from, top.from) &&
                   meets(line->to, divider.position);
        });
    }

    /// Whether words stand beside the divider in the field, and none over it.
    bool holdsWords(const BorderLine& divider, const BorderLine& top) const {
        bool holds = false;
        for (const Line& line : m_text) {
            if (line.angle != 0 || line.baseline < top.position || line.baseline > divider.to)
                continue;
            const double slack = m_parameters.straddle * line.fontSize;
            for (const Word& word : line.words) {
                if (word.box.left < divider.position - slack && word.box.right > divider.position + slack)
                    return false;
                holds = holds || (word.box.left >= divider.position - slack && word.box.right <= top.to + slack);
            }
        }
        return holds;
    }

    const std::vector<Line>& m_text;
    const TableParameters::Tables& m_parameters;
    Lines m_horizontal; ///< both by position
    Lines m_vertical;
};

} // namespace

std::vector<BorderLine> closeOpenFields(std::vector<BorderLine> lines, const std::vector<Line>& text,
                                        const TableParameters::Tables& parameters) {
    addLines(lines, OpenFieldFinder(lines, text, parameters).find());
    return lines;
}

} // namespace orvane::layout
