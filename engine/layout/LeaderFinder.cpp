#include "layout/LeaderFinder.h"

#include <algorithm>

namespace orvane::layout {
namespace {

using document::TabLeader;

TabLeader leaderOf(char32_t c) {
    switch (c) {
    case U'.':
    case U'\x2026': // horizontal ellipsis
        return TabLeader::Dots;
    case U'\xB7':
    case U'\x2219':
    case U'\x22C5':
        return TabLeader::MiddleDots;
    case U'-':
    case U'\x2010':
        return TabLeader::Hyphens;
    case U'_':
        return TabLeader::Underscore;
    default:
        return TabLeader::None;
    }
}

TabLeader leaderOf(const Cluster& cluster) {
    if (cluster.text.empty())
        return TabLeader::None;
    const TabLeader leader = leaderOf(cluster.text.front());
    const bool isUniform =
        std::all_of(cluster.text.begin(), cluster.text.end(), [leader](char32_t c) { return leaderOf(c) == leader; });
    return isUniform ? leader : TabLeader::None;
}

struct Run {
    std::size_t first = 0;
    std::size_t last = 0; ///< one past the end
    std::size_t dots = 0; ///< an ellipsis counts three
};

Run runAt(const std::vector<Cluster>& clusters, std::size_t first, const LayoutParameters::Leaders& limits) {
    const TabLeader leader = leaderOf(clusters[first]);
    Run run{first, first, 0};
    for (std::size_t i = first; i < clusters.size() && leaderOf(clusters[i]) == leader; ++i) {
        if (i > first && clusters[i].gapBefore.width > limits.widestGap * clusters[i].size)
            break;
        for (const char32_t c : clusters[i].text)
            run.dots += c == U'\x2026' ? 3 : 1;
        run.last = i + 1;
    }
    return run;
}

/// A run is a leader when little follows it, and that ends the row or stands well apart from what comes next.
bool leadsToSomething(const std::vector<Cluster>& clusters, const Run& run, const LayoutParameters::Leaders& limits) {
    std::size_t characters = 0;
    for (std::size_t i = run.last; i < clusters.size(); ++i) {
        if (i > run.last && clusters[i].gapBefore.width > limits.nextColumn * clusters[i].size)
            break;
        if (leaderOf(clusters[i]) != TabLeader::None && clusters[i].text.front() == clusters[run.first].text.front() &&
            i > run.last)
            return false;
        characters += clusters[i].text.size();
    }
    return characters > 0 && characters <= limits.longestTarget;
}

} // namespace

void findLeaders(TextRow& row, const LayoutParameters& parameters) {
    const LayoutParameters::Leaders& limits = parameters.leaders;
    std::vector<Cluster>& clusters = row.clusters;
    std::vector<Cluster> kept;
    kept.reserve(clusters.size());
    for (std::size_t i = 0; i < clusters.size();) {
        const TabLeader leader = leaderOf(clusters[i]);
        const Run run = leader == TabLeader::None ? Run{i, i + 1, 0} : runAt(clusters, i, limits);
        const bool isLeader = run.dots >= limits.fewestDots && leadsToSomething(clusters, run, limits) &&
                              clusters[run.last].start - clusters[run.first].start >= limits.shortest * row.fontSize;
        if (isLeader) {
            ClusterGap& gap = clusters[run.last].gapBefore;
            gap.width = clusters[run.last].start - (kept.empty() ? clusters[run.first].start : kept.back().end);
            gap.endsWord = true;
            gap.kind = Gap::Tab;
            gap.leader = leader;
        } else {
            std::move(clusters.begin() + static_cast<std::ptrdiff_t>(run.first),
                      clusters.begin() + static_cast<std::ptrdiff_t>(run.last), std::back_inserter(kept));
        }
        i = run.last;
    }
    clusters = std::move(kept);
}

} // namespace orvane::layout
