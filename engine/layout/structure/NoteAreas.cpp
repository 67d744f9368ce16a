#include "layout/structure/NoteAreas.h"

#include "layout/structure/NoteMark.h"
#include "layout/structure/NoteText.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace orvane::layout {
namespace {

struct Interval {
    double from = 0;
    double to = 0;
};

/// Finds the areas of one page. Lines are sorted once, so that each rule costs no more than what stands below it.
class AreaFinder {
public:
    AreaFinder(const PageText& page, const DocumentContext& context, const StructureParameters::Notes& limits)
        : m_page(page)
        , m_context(context)
        , m_limits(limits) {
        for (std::size_t i = 0; i < page.lines.size(); ++i)
            if (page.lines[i].angle == 0 && !page.lines[i].words.empty())
                m_lines.push_back(i);
        std::stable_sort(m_lines.begin(), m_lines.end(),
                         [&](std::size_t a, std::size_t b) { return page.lines[a].baseline < page.lines[b].baseline; });
    }

    std::vector<NoteArea> run() const {
        std::vector<std::size_t> rules;
        for (std::size_t i = 0; i < m_page.rules.size(); ++i)
            if (mayPartNotes(m_page.rules[i]))
                rules.push_back(i);
        // From the bottom up: what a lower rule has is not looked at again.
        std::stable_sort(rules.begin(), rules.end(), [&](std::size_t a, std::size_t b) {
            return m_page.rules[a].position > m_page.rules[b].position;
        });
        std::vector<NoteArea> areas;
        std::vector<bool> isTaken(m_page.lines.size(), false);
        for (const std::size_t rule : rules)
            if (auto area = areaBelow(rule, isTaken)) {
                // What stands side by side is seldom notes, and part of those above if they are.
                for (const std::size_t line : area->lines)
                    isTaken[line] = isTaken[line] || !area->hasRows;
                areas.push_back(std::move(*area));
            }
        std::stable_sort(areas.begin(), areas.end(), [&](const NoteArea& a, const NoteArea& b) {
            return std::abs(a.left - b.left) > m_limits.edgeTolerance ? a.left < b.left : a.top < b.top;
        });
        return areas;
    }

    std::optional<NoteArea> wholePage() const {
        if (m_lines.empty() || !isRaisedMark(line(m_lines.front()).words.front().spans.front()))
            return std::nullopt;
        NoteArea area;
        for (const std::size_t i : m_lines)
            if (!addLine(area, i))
                return std::nullopt;
        area.left = line(m_lines.front()).box.left;
        area.top = line(m_lines.front()).box.top;
        return area;
    }

    std::optional<NoteArea> foot() const {
        std::size_t first = m_lines.size();
        while (first > 0 && line(m_lines[first - 1]).fontSize <= m_limits.footSize * m_context.bodyFontSize)
            --first;
        NoteArea area;
        for (std::size_t i = first; first > 0 && i < m_lines.size(); ++i) {
            if (standsBesideLast(area, m_lines[i]) || !addLine(area, m_lines[i]))
                return std::nullopt;
        }
        if (area.starts.empty())
            return std::nullopt;
        startWith(area, area.starts.front().line, m_page);
        return isBelowTable(area) ? std::nullopt : std::optional(std::move(area));
    }

private:
    using LineIterator = std::vector<std::size_t>::const_iterator;

    static bool standBeside(const Line& a, const Line& b) {
        return 2 * overlap(a.box.top, a.box.bottom, b.box.top, b.box.bottom) > std::min(a.box.height(), b.box.height());
    }

    /// Notes are read downwards: what stands beside the line before it is a table's, or names the parts of a chart.
    bool standsBesideLast(const NoteArea& area, std::size_t index) const {
        return !area.lines.empty() && standBeside(line(area.lines.back()), line(index)) &&
               !isMarkOf(line(area.lines.back()), line(index));
    }

    const Line& line(std::size_t index) const { return m_page.lines[index]; }

    bool mayPartNotes(const Rule& rule) const {
        const double length = rule.to - rule.from;
        return rule.direction == RuleDirection::Horizontal && !rule.isUsed &&
               length >= m_limits.shortestRule * m_page.width && length <= m_limits.longestRule * m_page.width &&
               !closesTable(rule);
    }

    /// Whether a rule above it has the same ends: the first and the last of a table, below which its own notes stand.
    bool closesTable(const Rule& rule) const {
        return std::any_of(m_page.rules.begin(), m_page.rules.end(), [&](const Rule& other) {
            return other.direction == RuleDirection::Horizontal && !other.isUsed &&
                   rule.position - other.position > m_context.bodyLeading &&
                   std::abs(other.from - rule.from) <= m_limits.twinEnds &&
                   std::abs(other.to - rule.to) <= m_limits.twinEnds;
        });
    }

    LineIterator firstBelow(double y) const {
        return std::partition_point(m_lines.begin(), m_lines.end(),
                                    [&](std::size_t i) { return line(i).baseline <= y; });
    }

    /// The text column in which the rule stands. The lines above it tell; where these are no columns, those below may
    /// be, unless a line at the page's foot leads across them.
    Interval columnOf(const Rule& rule) const {
        const auto from = firstBelow(rule.position - m_limits.columnReach);
        const Interval above = columnAmong(rule, from, firstBelow(rule.position));
        return std::isfinite(above.from) || std::isfinite(above.to) ? above : columnAmong(rule, from, m_lines.end());
    }

    Interval columnAmong(const Rule& rule, LineIterator from, LineIterator to) const {
        std::vector<Interval> parts;
        for (auto i = from; i != to; ++i)
            parts.push_back({line(*i).box.left, line(*i).box.right});
        std::sort(parts.begin(), parts.end(), [](const Interval& a, const Interval& b) { return a.from < b.from; });
        const double narrowest = m_limits.narrowestColumn * m_page.width;
        Interval column{-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};
        double start = parts.empty() ? 0 : parts.front().from, end = start;
        for (const Interval& part : parts) {
            // What is narrower than a column is a mark or another part of a line, set off by a tabulator.
            const bool isGap = part.from > end && end - start >= narrowest;
            if (isGap && end < rule.from + m_limits.edgeTolerance)
                column.from = start = part.from;
            else if (isGap) {
                column.to = end;
                break;
            }
            end = std::max(end, part.to);
        }
        return column;
    }

    /// Whether a table ends right above the notes, which are its own then.
    bool isBelowTable(const NoteArea& area) const {
        const Rect& first = line(area.lines.front()).box;
        return std::any_of(m_page.rules.begin(), m_page.rules.end(), [&](const Rule& rule) {
            return rule.direction == RuleDirection::Horizontal && rule.position <= area.top + rule.width &&
                   area.top - rule.position <= m_limits.largestGap &&
                   overlap(rule.from, rule.to, first.left, first.right) > 0 && closesTable(rule);
        });
    }

    bool addLine(NoteArea& area, std::size_t index) const {
        const Line& added = line(index);
        const double footSize = m_limits.footSize * m_context.bodyFontSize;
        const bool isSmall = !area.lines.empty() && line(area.lines.front()).fontSize <= footSize;
        // Text of the body's size below smaller one is no note: what is small stands below a table or a picture.
        if (added.fontSize > (isSmall ? footSize : m_limits.largestSize * m_context.bodyFontSize))
            return false;
        area.lines.push_back(index);
        if (const std::string mark = markAtStart(added.words.front()); !mark.empty())
            area.starts.push_back({index, bareMark(mark)});
        else if (const std::string word = textOf(added.words.front()); isNoteMark(word))
            area.wordStarts.push_back({index, bareMark(word)});
        return true;
    }

    /// The area below a rule, if what stands there can be notes.
    std::optional<NoteArea> areaBelow(std::size_t index, const std::vector<bool>& isTaken) const {
        const Rule& rule = m_page.rules[index];
        const auto below = firstBelow(rule.position);
        if (below == m_lines.end())
            return std::nullopt;
        const Interval column = columnOf(rule);
        NoteArea area{
            index, rule.from, rule.position, {}, {}, {}, std::isfinite(column.from) || std::isfinite(column.to)};
        double left = m_page.width, right = 0;
        for (auto i = below; i != m_lines.end(); ++i) {
            const Rect& box = line(*i).box;
            if (box.centerX() < column.from || box.centerX() > column.to)
                continue;
            if (isTaken[*i])
                break;
            if (area.lines.empty() && box.top - rule.position > m_limits.largestGap)
                return std::nullopt;
            area.hasRows = area.hasRows || standsBesideLast(area, *i);
            if (!addLine(area, *i))
                return std::nullopt;
            left = std::min(left, box.left);
            right = std::max(right, box.right);
        }
        if (area.lines.empty())
            return std::nullopt;
        // The rule starts where the text does, on the side where its lines start.
        const bool startsWithText = line(area.lines.front()).isRightToLeft
                                        ? std::abs(rule.to - right) <= m_limits.edgeTolerance
                                        : std::abs(rule.from - left) <= m_limits.edgeTolerance;
        return startsWithText ? std::optional(std::move(area)) : std::nullopt;
    }

    const PageText& m_page;
    const DocumentContext& m_context;
    const StructureParameters::Notes& m_limits;
    std::vector<std::size_t> m_lines; ///< indices of upright lines by baseline
};

} // namespace

std::vector<NoteArea> findNoteAreas(const PageText& page, const DocumentContext& context,
                                    const StructureParameters::Notes& parameters) {
    return AreaFinder(page, context, parameters).run();
}

std::optional<NoteArea> notesAtFoot(const PageText& page, const DocumentContext& context,
                                    const StructureParameters::Notes& parameters) {
    return AreaFinder(page, context, parameters).foot();
}

void startWith(NoteArea& area, std::size_t line, const PageText& page) {
    area.lines.erase(area.lines.begin(), std::find(area.lines.begin(), area.lines.end(), line));
    const auto isBefore = [line](const NoteStart& start) { return start.line != line; };
    area.starts.erase(area.starts.begin(), std::find_if_not(area.starts.begin(), area.starts.end(), isBefore));
    area.left = page.lines[line].box.left;
    area.top = page.lines[line].box.top;
}

std::optional<NoteArea> wholePageOfNotes(const PageText& page, const DocumentContext& context,
                                         const StructureParameters::Notes& parameters) {
    return AreaFinder(page, context, parameters).wholePage();
}

} // namespace orvane::layout
