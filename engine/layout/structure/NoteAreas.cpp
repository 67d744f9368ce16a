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
        if (m_lines.empty() || !startsRaised(line(m_lines.front())))
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
        const auto area = first > 0 ? areaFrom(first) : std::nullopt;
        return area && !area->starts.empty() ? startingAt(*area, area->starts.front().line) : std::nullopt;
    }

    std::optional<NoteArea> belowGap() const {
        std::size_t first = m_lines.size();
        while (first > 0 && (first == m_lines.size() || !standsApart(m_lines[first - 1], m_lines[first])))
            --first;
        auto area = first > 0 ? areaFrom(first) : std::nullopt;
        if (!area)
            return std::nullopt;
        std::erase_if(area->starts, [&](const NoteStart& start) { return !startsRaised(line(start.line)); });
        const bool startsWithMark = !area->starts.empty() && area->starts.front().line == area->lines.front();
        return startsWithMark ? startingAt(*area, area->lines.front()) : std::nullopt;
    }

private:
    using LineIterator = std::vector<std::size_t>::const_iterator;

    /// All lines from that one of m_lines on, if they can be notes, one below the other.
    std::optional<NoteArea> areaFrom(std::size_t first) const {
        NoteArea area;
        for (std::size_t i = first; i < m_lines.size(); ++i)
            if (standsBesideLast(area, m_lines[i]) || !addLine(area, m_lines[i]))
                return std::nullopt;
        return area;
    }

    /// The area from that line on, unless it holds the notes of a table.
    std::optional<NoteArea> startingAt(NoteArea area, std::size_t line) const {
        startWith(area, line, m_page);
        return isBelowTable(area) ? std::nullopt : std::optional(std::move(area));
    }

    static bool standBeside(const Line& a, const Line& b) {
        return 2 * overlap(a.box.top, a.box.bottom, b.box.top, b.box.bottom) > std::min(a.box.height(), b.box.height());
    }

    /// Notes are read downwards: what stands beside the line before it is a table's, or names the parts of a chart.
    bool standsBesideLast(const NoteArea& area, std::size_t index) const {
        return !area.lines.empty() && standBeside(line(area.lines.back()), line(index)) &&
               !isMarkOf(line(area.lines.back()), line(index));
    }

    /// Whether a good line of space parts the line from the one above.
    bool standsApart(std::size_t above, std::size_t index) const {
        return line(index).box.top - line(above).box.bottom >= line(above).fontSize;
    }

    /// Whether the line starts with a raised mark, or is nothing but a small one.
    bool startsRaised(const Line& text) const {
        return isRaisedMark(text.words.front().spans.front()) ||
               (isLoneMark(text) && text.fontSize <= m_limits.loneMarkSize * m_context.bodyFontSize);
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

    /// The text column in which the rule stands. The lines above it tell, with the notes that start where it does:
    /// above those that lead across columns stands a table. Where these are no columns, all lines below may be, unless
    /// one at the page's foot leads across them.
    Interval columnOf(const Rule& rule) const {
        const auto from = firstBelow(rule.position - m_limits.columnReach);
        const auto below = firstBelow(rule.position);
        std::vector<Interval> parts = extentsOf(from, below);
        double bottom = rule.position;
        for (auto i = below; i != m_lines.end() && line(*i).box.top - bottom <= m_limits.largestGap; ++i) {
            bottom = line(*i).box.bottom;
            if (startsAt(rule, line(*i)))
                parts.push_back(extentToTab(line(*i)));
        }
        const Interval column = columnAmong(rule, std::move(parts));
        return std::isfinite(column.from) || std::isfinite(column.to)
                   ? column
                   : columnAmong(rule, extentsOf(from, m_lines.end()));
    }

    bool startsAt(const Rule& rule, const Line& text) const {
        const double indent = text.isRightToLeft ? rule.to - text.box.right : text.box.left - rule.from;
        return std::abs(indent) <= m_limits.largestIndent;
    }

    std::vector<Interval> extentsOf(LineIterator from, LineIterator to) const {
        std::vector<Interval> extents;
        for (auto i = from; i != to; ++i)
            extents.push_back({line(*i).box.left, line(*i).box.right});
        return extents;
    }

    /// What stands behind a tabulator may be the line of another column.
    static Interval extentToTab(const Line& text) {
        Rect box = text.words.front().box;
        for (std::size_t i = 1; i < text.words.size() && text.words[i].gapBefore != Gap::Tab; ++i)
            box = box.united(text.words[i].box);
        return {box.left, box.right};
    }

    Interval columnAmong(const Rule& rule, std::vector<Interval> parts) const {
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

    /// Whether a table ends right above the notes, which are its own then. Numbered ones at the page's foot stand where
    /// footnotes do, whose they may be.
    bool isBelowTable(const NoteArea& area) const {
        const bool areNumbered = std::all_of(area.starts.begin(), area.starts.end(), [](const NoteStart& start) {
            return start.mark.find_first_not_of("0123456789") == std::string::npos;
        });
        if (areNumbered && line(area.lines.back()).box.bottom >= m_limits.footReach * m_page.height)
            return false;
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
        const bool isSmall = area.textSize > 0 && area.textSize <= footSize;
        // Text of the body's size below smaller one is no note: what is small stands below a table or a picture.
        if (added.fontSize > (isSmall ? footSize : m_limits.largestSize * m_context.bodyFontSize))
            return false;
        area.lines.push_back(index);
        if (area.textSize == 0 && !isLoneMark(added)) // which is smaller than the text of its note
            area.textSize = added.fontSize;
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

std::optional<NoteArea> notesBelowGap(const PageText& page, const DocumentContext& context,
                                      const StructureParameters::Notes& parameters) {
    return AreaFinder(page, context, parameters).belowGap();
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
