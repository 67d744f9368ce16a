#include "layout/running/EdgeRows.h"

#include "layout/support/Tally.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

double usualFontSize(const std::vector<PageText>& pages) {
    Tally<long> sizes;
    for (const PageText& page : pages)
        for (const Line& line : page.lines)
            sizes.add(std::lround(line.fontSize), line.box.width());
    const long* usual = sizes.heaviest();
    return usual ? static_cast<double>(*usual) : 0;
}

double distance(const RunningRow& outer, const RunningRow& inner) {
    return std::max(inner.box.top - outer.box.bottom, outer.box.top - inner.box.bottom);
}

class EdgeReader {
public:
    EdgeReader(const std::vector<PageText>& pages, PageEdge edge, const RunningParameters::RunningHeads& limits)
        : m_pages(pages)
        , m_edge(edge)
        , m_limits(limits)
        , m_usualSize(usualFontSize(pages)) {
        for (const PageText& page : pages)
            m_edges.push_back({rowsFromEdge(page, edge, limits), {}, 0});
    }

    std::vector<EdgeRows> read() {
        for (std::size_t i = 0; i < m_edges.size(); ++i)
            for (const RunningRow& row : m_edges[i].rows)
                m_edges[i].matches.push_back(bestMatch(i, row));
        for (std::size_t i = 0; i < m_edges.size(); ++i)
            m_edges[i].taken = countTaken(i);
        for (std::size_t i = 0; i < m_edges.size(); ++i)
            for (std::size_t row = 0; row < m_edges[i].taken; ++row)
                markRepeatedNumbers(i, m_edges[i].rows[row]);
        return std::move(m_edges);
    }

private:
    /// Calls `visit(match, other row)` for the rows of the pages nearby that agree with the row.
    template<typename Visit>
    void forMatches(std::size_t index, const RunningRow& row, const Visit& visit) const {
        for (std::ptrdiff_t by = -kRunningReach; by <= kRunningReach; ++by) {
            const auto other = static_cast<std::ptrdiff_t>(index) + by;
            if (by == 0 || other < 0 || other >= static_cast<std::ptrdiff_t>(m_edges.size()))
                continue;
            for (const RunningRow& otherRow : m_edges[static_cast<std::size_t>(other)].rows)
                if (const RowMatch match = matchOf(row, otherRow, static_cast<int>(by)); match != RowMatch::None)
                    visit(match, otherRow);
        }
    }

    RowMatch bestMatch(std::size_t index, const RunningRow& row) const {
        RowMatch best = RowMatch::None;
        forMatches(index, row,
                   [&best](RowMatch match, const RunningRow&) { best = best == RowMatch::Text ? best : match; });
        return best;
    }

    void markRepeatedNumbers(std::size_t index, RunningRow& row) const {
        forMatches(index, row, [&row](RowMatch match, const RunningRow& other) {
            for (std::size_t i = 0; match == RowMatch::Text && i < std::min(row.numbers.size(), other.numbers.size());
                 ++i)
                row.numbers[i].isRepeated = row.numbers[i].isRepeated || row.numbers[i].value == other.numbers[i].value;
        });
    }

    RowMatch matchOf(const RunningRow& row, const RunningRow& other, int by) const {
        const RowMatch match = by > 0 ? matchRows(row, other, by, m_limits) : matchRows(other, row, -by, m_limits);
        // "Chapter 3" over chapters of one page each counts too, but it is larger than running heads are.
        const bool counts = match == RowMatch::Number || !countingNumbers(row, other, by).empty();
        return counts && row.fontSize > m_limits.headingSize * m_usualSize ? RowMatch::None : match;
    }

    std::size_t countTaken(std::size_t index) const {
        const EdgeRows& edge = m_edges[index];
        if (edge.rows.empty() || edge.rows[0].fromEdge > m_limits.firstReach * m_pages[index].height)
            return 0;
        std::size_t taken = 0;
        for (std::size_t i = 0; i < edge.rows.size(); ++i) {
            if (i > 0 && distance(edge.rows[i - 1], edge.rows[i]) > m_limits.chainGap && !isOfFoot(index, i))
                break;
            if (edge.matches[i] != RowMatch::None)
                taken = i + 1;
            else if (taken < i)
                break; // one row between may differ, the title of a chapter for instance, but not two
        }
        while (taken > 0 && !isBelievable(index, taken))
            --taken;
        return taken;
    }

    /// Whether the row stands near enough to the lower edge, and on enough pages, for the foot to begin with it
    /// whatever space it holds: that of a picture, say.
    bool isOfFoot(std::size_t index, std::size_t i) const {
        const EdgeRows& edge = m_edges[index];
        return m_edge == PageEdge::Bottom && edge.matches[i] == RowMatch::Text &&
               edge.rows[i].fromEdge <= m_limits.firstReach * m_pages[index].height && isSure(index, edge.rows[i]);
    }

    bool isBelievable(std::size_t index, std::size_t taken) const {
        const EdgeRows& edge = m_edges[index];
        const RunningRow& last = edge.rows[taken - 1];
        if (edge.matches[taken - 1] == RowMatch::None)
            return false;
        if (taken == edge.rows.size())
            return true;
        const RunningRow& next = edge.rows[taken];
        if (isHeadOfTable(m_pages[index], last, next))
            return false;
        const bool isTitleLike = last.lines.size() == 1 && edge.matches[taken - 1] == RowMatch::Text &&
                                 std::abs(last.fontSize - next.fontSize) > m_limits.sameSize;
        return isTitleLike || isSure(index, last) || distance(last, next) >= m_limits.bodyGap * last.fontSize;
    }

    /// Enough pages repeat it.
    bool isSure(std::size_t index, const RunningRow& row) const {
        int count = 1;
        for (std::size_t i = 0; i < m_edges.size() && count < m_limits.surePages; ++i) {
            const int by = static_cast<int>(i) - static_cast<int>(index);
            count += by != 0 && std::any_of(m_edges[i].rows.begin(), m_edges[i].rows.end(),
                                            [&](const RunningRow& r) { return matchOf(row, r, by) != RowMatch::None; });
        }
        return count >= m_limits.surePages;
    }

    /// The head of a table that goes on over pages repeats as well; rules between columns lead from it into the rows
    /// below.
    bool isHeadOfTable(const PageText& page, const RunningRow& row, const RunningRow& next) const {
        const double upper = std::min(row.box.centerY(), next.box.centerY());
        const double lower = std::max(row.box.centerY(), next.box.centerY());
        return std::any_of(page.rules.begin(), page.rules.end(), [&](const Rule& rule) {
            return rule.direction == RuleDirection::Vertical && rule.from <= upper && rule.to >= lower &&
                   rule.position > row.box.left + m_limits.sidePart &&
                   rule.position < row.box.right - m_limits.sidePart;
        });
    }

    const std::vector<PageText>& m_pages;
    PageEdge m_edge;
    const RunningParameters::RunningHeads& m_limits;
    double m_usualSize;
    std::vector<EdgeRows> m_edges;
};

} // namespace

std::vector<EdgeRows> readEdgeRows(const std::vector<PageText>& pages, PageEdge edge,
                                   const RunningParameters::RunningHeads& parameters) {
    return EdgeReader(pages, edge, parameters).read();
}

void takeRows(EdgeRows& edge, std::size_t count) {
    std::fill_n(edge.matches.begin(), count, RowMatch::Text);
    edge.taken = count;
}

} // namespace orvane::layout
