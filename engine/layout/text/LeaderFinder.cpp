#include "layout/text/LeaderFinder.h"

#include "layout/text/Characters.h"

#include <algorithm>
#include <iterator>

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

Run runAt(const std::vector<Cluster>& clusters, std::size_t first, const TextParameters::Leaders& limits) {
    const TabLeader leader = leaderOf(clusters[first]);
    Run run{first, first, 0};
    for (std::size_t i = first; i < clusters.size() && leaderOf(clusters[i]) == leader; ++i) {
        // A full stop that ends a number is none of the dots behind a tab.
        const bool endsNumber = i == first + 1 && first > 0 && isDigit(clusters[first - 1].text.back());
        const double widest = endsNumber ? limits.nextColumn : limits.widestGap;
        if (i > first && clusters[i].gapBefore.width > widest * clusters[i].size)
            break;
        for (const char32_t c : clusters[i].text)
            run.dots += c == U'\x2026' ? 3 : 1;
        run.last = i + 1;
    }
    return run;
}

/// Characters from `begin` on, up to a wide gap. With a second run of the same character in between, more than any
/// target has.
template<typename Iterator>
std::size_t charactersUpToGap(Iterator begin, Iterator end, char32_t leader, const TextParameters::Leaders& limits) {
    std::size_t characters = 0;
    for (auto cluster = begin; cluster != end; ++cluster) {
        if (cluster != begin && std::max(cluster->start - std::prev(cluster)->end,
                                         std::prev(cluster)->start - cluster->end) > limits.nextColumn * cluster->size)
            break;
        if (cluster != begin && std::next(cluster) != end && cluster->text.front() == leader &&
            std::next(cluster)->text.front() == leader)
            return limits.longestTarget + 1;
        characters += cluster->text.size();
    }
    return characters;
}

/// A run is a leader when little follows it, and that ends the row or stands well apart from what comes next. In a
/// right-to-left row what follows stands to the left.
bool leadsToSomething(const std::vector<Cluster>& clusters, const Run& run, const TextParameters::Leaders& limits) {
    const bool isRightToLeft = std::any_of(clusters.begin(), clusters.end(), [](const Cluster& cluster) {
        return isRightToLeftLetter(cluster.text.front());
    });
    const char32_t leader = clusters[run.first].text.front();
    const auto after = clusters.begin() + static_cast<std::ptrdiff_t>(run.last);
    const auto before = std::make_reverse_iterator(clusters.begin() + static_cast<std::ptrdiff_t>(run.first));
    const std::size_t target = isRightToLeft ? charactersUpToGap(before, clusters.rend(), leader, limits)
                                             : charactersUpToGap(after, clusters.end(), leader, limits);
    return run.last < clusters.size() && target > 0 && target <= limits.longestTarget;
}

/// Whether nothing but the number of an item stands before the run, and no number behind it: a blank to fill in.
bool isBlankOfItem(const std::vector<Cluster>& clusters, const Run& run, const TextParameters::Leaders& limits) {
    if (run.first == 0 || run.first > limits.longestNumber || isDigit(clusters[run.last].text.front()))
        return false;
    const char32_t last = clusters[run.first - 1].text.back();
    return last == U'.' || last == U')';
}

/// Whether the run begins its row with no page behind it, or is of strokes that stand apart from the text before: a
/// blank to fill in, with what it is for behind it. Dots that touch a word were set with a tabulator.
bool beginsText(const std::vector<Cluster>& clusters, const Run& run, const TextParameters::Leaders& limits) {
    const Cluster& first = clusters[run.first];
    const Cluster& behind = clusters[run.last];
    if (run.first == 0) {
        const char32_t next = behind.text.front();
        const bool touchesWord = isLetter(next) && !behind.gapBefore.hasBlank;
        return !isDigit(next) && (leaderOf(first) != TabLeader::Dots || !touchesWord);
    }
    return leaderOf(first) == TabLeader::Underscore &&
           first.start - clusters[run.first - 1].end > limits.nextColumn * first.size;
}

/// Full stops within a sentence that breaks off.
bool isEllipsis(const std::vector<Cluster>& clusters, const Run& run, const TextParameters::Leaders& limits) {
    return leaderOf(clusters[run.first]) == TabLeader::Dots && run.dots <= limits.longestEllipsis &&
           !isDigit(clusters[run.last].text.front());
}

} // namespace

void findLeaders(TextRow& row, const TextParameters& parameters) {
    const TextParameters::Leaders& limits = parameters.leaders;
    std::vector<Cluster>& clusters = row.clusters;
    std::vector<bool> isGone(clusters.size(), false);
    for (std::size_t i = 0; i < clusters.size();) {
        const TabLeader leader = leaderOf(clusters[i]);
        const Run run = leader == TabLeader::None ? Run{i, i + 1, 0} : runAt(clusters, i, limits);
        i = run.last;
        if (run.dots < limits.fewestDots || !leadsToSomething(clusters, run, limits) ||
            beginsText(clusters, run, limits) || isEllipsis(clusters, run, limits) ||
            isBlankOfItem(clusters, run, limits) ||
            clusters[run.last].start - clusters[run.first].start < limits.shortest * row.fontSize)
            continue;
        std::fill(isGone.begin() + static_cast<std::ptrdiff_t>(run.first),
                  isGone.begin() + static_cast<std::ptrdiff_t>(run.last), true);
        ClusterGap& gap = clusters[run.last].gapBefore;
        gap.width =
            clusters[run.last].start - (run.first > 0 ? clusters[run.first - 1].end : clusters[run.first].start);
        gap.endsWord = true;
        gap.kind = Gap::Tab;
        gap.leader = leader;
    }
    std::size_t index = 0;
    std::erase_if(clusters, [&](const Cluster&) { return isGone[index++]; });
}

} // namespace orvane::layout
