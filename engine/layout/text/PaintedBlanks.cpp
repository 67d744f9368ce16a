#include "layout/text/PaintedBlanks.h"

#include "layout/text/Characters.h"

#include <unicode/uscript.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace orvane::layout {
namespace {

constexpr char32_t kIdeographicBlank = U'\u3000';

bool isArabic(const Cluster& cluster) {
    return std::any_of(cluster.text.begin(), cluster.text.end(), [](char32_t c) {
        UErrorCode error = U_ZERO_ERROR;
        return uscript_getScript(static_cast<UChar32>(c), &error) == USCRIPT_ARABIC;
    });
}

/// The blanks between two clusters with ink.
class BlankRun {
public:
    void add(const Cluster& blank) {
        m_widestHole = std::max(m_widestHole, m_count == 0 ? 0 : blank.start - m_end);
        m_start = m_count == 0 ? blank.start : m_start;
        m_end = blank.end;
        m_narrowest = m_count == 0 ? blank.width() : std::min(m_narrowest, blank.width());
        m_kind = m_count == 0 || m_kind == blank.text.front() ? blank.text.front() : U' ';
        m_count = std::min(kMostBlanks, m_count + static_cast<int>(blank.text.size()));
    }

    int count() const { return m_count; }

    ClusterGap gapBetween(const Cluster& left, const Cluster& right, const TextParameters::Words& limits) const {
        ClusterGap gap;
        gap.width = right.start - left.end;
        if (m_count == 0)
            return gap;
        gap.hasBlank = true;
        gap.blanks = m_count;
        gap.blank = m_kind == kIdeographicBlank ? m_kind : U' ';
        const double hole = std::max({m_widestHole, m_start - left.end, right.start - m_end});
        gap.isTyped = hole <= limits.typedHole * m_narrowest;
        return gap;
    }

private:
    int m_count = 0;
    char32_t m_kind = U' ';
    double m_start = 0;
    double m_end = 0;
    double m_narrowest = 0;
    double m_widestHole = 0;
};

} // namespace

void takeOutBlanks(TextRow& row, const TextParameters::Words& limits) {
    std::vector<Cluster> ink;
    ink.reserve(row.clusters.size());
    BlankRun blanks;
    for (Cluster& cluster : row.clusters) {
        if (isBlank(cluster.text)) {
            blanks.add(cluster);
            continue;
        }
        cluster.gapBefore = ink.empty() ? ClusterGap() : blanks.gapBetween(ink.back(), cluster, limits);
        blanks = {};
        ink.push_back(std::move(cluster));
    }
    if (!ink.empty())
        ink.back().blanksAfter = blanks.count();
    row.clusters = std::move(ink);
}

void joinStrokes(std::vector<Cluster>& clusters) {
    const auto touch = [](const Cluster& left, const Cluster& right) {
        return isArabic(left) && right.start - left.end < left.spaceWidth / 2;
    };
    const auto isStroke = [](const Cluster& cluster) { return cluster.text == U"\uFFFD"; };
    std::vector<Cluster> joined;
    joined.reserve(clusters.size());
    constexpr double kNowhere = std::numeric_limits<double>::infinity();
    double start = kNowhere; // of strokes that belong to the next letter
    std::size_t letter = 0;  // that next one
    for (std::size_t i = 0; i < clusters.size(); ++i) {
        Cluster& cluster = clusters[i];
        if (!isStroke(cluster)) {
            cluster.start = std::min(cluster.start, start);
            start = kNowhere;
            joined.push_back(std::move(cluster));
            continue;
        }
        for (letter = std::max(letter, i); letter < clusters.size() && isStroke(clusters[letter]);)
            ++letter;
        if (!joined.empty() && touch(joined.back(), cluster))
            joined.back().end = std::max(joined.back().end, cluster.end);
        else if (letter < clusters.size() && isArabic(clusters[letter]))
            start = std::min(start, cluster.start);
        else
            joined.push_back(std::move(cluster));
    }
    clusters = std::move(joined);
}

} // namespace orvane::layout
