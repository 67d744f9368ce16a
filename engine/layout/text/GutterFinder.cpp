#include "layout/text/GutterFinder.h"

#include "layout/text/Characters.h"
#include "layout/text/LabelText.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace orvane::layout {
namespace {

/// Units: points.
double longestWord(std::span<const Cluster> clusters) {
    double longest = 0;
    std::size_t first = 0;
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        if (i > 0 && clusters[i].gapBefore.endsWord)
            first = i;
        longest = std::max(longest, clusters[i].end - clusters[first].start);
    }
    return longest;
}

/// The blank that is usual between the words of a row, or of a part of it; 0 when it has too few that may be blanks.
double usualGap(std::span<const Cluster> clusters, double widest, std::size_t fewest, double evenness) {
    std::vector<double> gaps, all;
    for (std::size_t i = 1; i < clusters.size(); ++i)
        if (clusters[i].gapBefore.endsWord) {
            all.push_back(clusters[i].gapBefore.ownWidth());
            if (all.back() <= widest)
                gaps.push_back(all.back());
        }
    if (gaps.size() < fewest) {
        // A short line that was stretched to its column has wide blanks, but all alike. Where they are wider than its
        // words, these stand apart, as numbers along an axis do.
        if (all.size() < fewest)
            return 0;
        const auto [least, most] = std::minmax_element(all.begin(), all.end());
        return *most - *least <= evenness && *least <= longestWord(clusters) ? *least : 0;
    }
    const auto middle = gaps.begin() + static_cast<std::ptrdiff_t>(gaps.size() / 2);
    std::nth_element(gaps.begin(), middle, gaps.end());
    return *middle;
}

} // namespace

GutterFinder::GutterFinder(const std::vector<TextRow>& rows, const std::vector<TextFrame>& frames,
                           const std::vector<Rule>& rules, const std::vector<Ground>& grounds,
                           const TextParameters& parameters)
    : m_rows(rows)
    , m_limits(parameters.gutters)
    , m_wallsOfFrame(frames.size()) {
    for (std::size_t i = 0; i < frames.size(); ++i) {
        std::vector<Wall>& walls = m_wallsOfFrame[i];
        for (const Rule& rule : rules) {
            const bool isUpright = rule.direction == RuleDirection::Vertical;
            const Rect box = frames[i].boxFromPage(isUpright ? Rect{rule.position, rule.from, rule.position, rule.to}
                                                             : Rect{rule.from, rule.position, rule.to, rule.position});
            if (box.height() > box.width())
                walls.push_back({box.centerX(), box.top, box.bottom, WallKind::Rule});
        }
        for (const Ground& ground : grounds) {
            const Rect box = frames[i].boxFromPage(ground.box);
            walls.push_back({box.left, box.top, box.bottom, WallKind::EdgeOfGround});
            walls.push_back({box.right, box.top, box.bottom, WallKind::EdgeOfGround});
        }
        std::sort(walls.begin(), walls.end(), [](const Wall& a, const Wall& b) { return a.position < b.position; });
    }
    for (const TextRow& row : rows)
        m_runs.push_back(cutRuns(row));
}

std::vector<RowRun> GutterFinder::cutRuns(const TextRow& row) const {
    const std::span<const Cluster> clusters(row.clusters);
    std::vector<RowRun> runs;
    // Each cell of a row may be stretched to its own width.
    for (std::size_t first = 0; first < clusters.size();) {
        std::size_t end = first + 1;
        while (end < clusters.size() && !hasWallBetween(row, clusters[end - 1].end, clusters[end].start))
            ++end;
        cutCell(row, first, end, runs);
        first = end;
    }
    for (RowRun& run : runs) {
        std::u32string text;
        for (std::size_t i = run.first; i < run.last && text.size() <= m_limits.longestLabel; ++i)
            text += clusters[i].text;
        run.isLabel = isLabelText(text, m_limits.longestLabel);
    }
    return runs;
}

void GutterFinder::cutCell(const TextRow& row, std::size_t first, std::size_t end, std::vector<RowRun>& runs) const {
    const std::span<const Cluster> clusters(row.clusters);
    const double justified = m_limits.widestJustified * row.fontSize;
    const double usual = m_limits.wideAgainstUsual * usualGap(clusters.subspan(first, end - first), justified,
                                                              m_limits.fewestGaps, m_limits.evenBlanks * row.fontSize);
    for (std::size_t i = first; i < end; ++i) {
        const Cluster& cluster = clusters[i];
        const ClusterGap& gap = cluster.gapBefore;
        const double width = gap.ownWidth();
        const bool isWide = i > 0 && gap.endsWord && width >= m_limits.wideGap * row.fontSize;
        const bool followsLeader = gap.leader != document::TabLeader::None;
        if (i == first || followsLeader || (isWide && width >= std::min(usual, justified))) {
            runs.push_back({i, i, cluster.start, cluster.end});
            runs.back().followsLeader = followsLeader;
            runs.back().isWalled = i > 0 && i == first;
            // Two blanks after a full stop are as wide as two others of their row.
            const double blanks = gap.blanks <= m_limits.mostTypedBlanks ? gap.blanks : 1;
            runs.back().isTabbed =
                followsLeader || (isWide && width >= blanks * usual && width >= m_limits.tabGap * row.fontSize);
        }
        runs.back().last = i + 1;
        runs.back().end = std::max(runs.back().end, cluster.end);
    }
}

bool GutterFinder::hasWallBetween(const TextRow& row, double left, double right) const {
    if (right - left < m_limits.narrowestWalled * row.fontSize)
        return false;
    const std::vector<Wall>& walls = m_wallsOfFrame[row.frame];
    auto wall = std::lower_bound(walls.begin(), walls.end(), left - m_limits.wallSlack,
                                 [](const Wall& a, double position) { return a.position < position; });
    for (; wall != walls.end() && wall->position <= right + m_limits.wallSlack; ++wall) {
        const bool standsInRow =
            wall->from <= row.baseline - m_limits.wallHeight * row.fontSize && wall->to >= row.baseline;
        // A ground no higher than a line may highlight words.
        const bool isEdge =
            wall->kind == WallKind::Rule || (right - left >= m_limits.narrowest * row.fontSize &&
                                             wall->to - wall->from >= m_limits.groundHeight * row.fontSize);
        if (standsInRow && isEdge)
            return true;
    }
    return false;
}

GutterFinder::Testimony GutterFinder::ask(std::size_t witness, const TextRow& row, const RowRun& left,
                                          const RowRun& right) const {
    const std::vector<RowRun>& runs = m_runs[witness];
    const double slack = m_limits.alignment * row.fontSize;
    if (runs.back().end <= right.start - m_limits.narrowest * row.fontSize)
        return runs.back().end > left.start ? Testimony::LeftOnly : Testimony::Silent;
    if (runs.front().start >= left.end + m_limits.narrowest * row.fontSize)
        return std::abs(runs.front().start - right.start) <= m_limits.indent * row.fontSize ? Testimony::RightOnly
                                                                                            : Testimony::Silent;
    for (std::size_t i = 1; i < runs.size(); ++i) {
        const double from = std::max(runs[i - 1].end, left.end);
        const double to = std::min(runs[i].start, right.start);
        if (to - from < m_limits.narrowest * row.fontSize)
            continue;
        const bool isAligned = std::abs(runs[i].start - right.start) <= slack ||
                               std::abs(runs[i - 1].end - left.end) <= slack ||
                               std::abs(runs[i].end - right.end) <= slack ||
                               std::abs(runs[i].start + runs[i].end - right.start - right.end) <= 2 * slack;
        return isAligned && !runs[i].followsLeader ? Testimony::For : Testimony::Silent;
    }
    return Testimony::Against;
}

void GutterFinder::gather(std::size_t row, const RowRun& left, const RowRun& right, int step, int& forIt, int& leftOnly,
                          int& rightOnly) const {
    const TextRow& asked = m_rows[row];
    double last = asked.baseline;
    for (int i = 1; i <= m_limits.neighbours; ++i) {
        const std::size_t witness =
            row + static_cast<std::size_t>(i * step); // wraps below zero, which is no row either
        if (witness >= m_rows.size() || m_rows[witness].frame != asked.frame ||
            std::abs(m_rows[witness].baseline - last) > m_limits.farthest * asked.fontSize)
            return;
        last = m_rows[witness].baseline;
        switch (ask(witness, asked, left, right)) {
        case Testimony::Against:
            return;
        case Testimony::For:
            ++forIt;
            break;
        case Testimony::LeftOnly:
            ++leftOnly;
            break;
        case Testimony::RightOnly:
            ++rightOnly;
            break;
        case Testimony::Silent:
            break;
        }
    }
}

bool GutterFinder::isGutter(std::size_t row, std::size_t run) const {
    const RowRun& left = m_runs[row][run - 1];
    const RowRun& right = m_runs[row][run];
    const TextRow& asked = m_rows[row];
    if (right.followsLeader)
        return false;
    if (right.isWalled)
        return true;
    // A label stands first in its row, and what it labels is text: "1.5" before another number is a number.
    const bool isFirst = run == 1 || left.isWalled;
    if (left.isLabel && isFirst && !isDigit(asked.clusters[right.first].text.front()) &&
        right.start - left.end <= m_limits.labelGap * asked.fontSize)
        return false;
    int forIt = 0, leftOnly = 0, rightOnly = 0;
    gather(row, left, right, -1, forIt, leftOnly, rightOnly);
    gather(row, left, right, 1, forIt, leftOnly, rightOnly);
    // Rows that fill one side only are columns that run on their own when both sides have such rows; a hanging
    // paragraph has them on one side.
    if (leftOnly > 0 && rightOnly > 0)
        forIt += std::min(leftOnly, rightOnly);
    return forIt >= m_limits.fewestWitnesses;
}

} // namespace orvane::layout
