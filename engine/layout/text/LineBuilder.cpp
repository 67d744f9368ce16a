#include "layout/text/LineBuilder.h"

#include "layout/text/GutterFinder.h"
#include "layout/text/LeaderFinder.h"
#include "layout/text/SmallCaps.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace orvane::layout {
namespace {

void sortByBaseline(std::vector<TextRow>& rows) {
    std::stable_sort(rows.begin(), rows.end(), [](const TextRow& a, const TextRow& b) {
        return std::tie(a.frame, a.baseline) < std::tie(b.frame, b.baseline);
    });
}

/// The value that most clusters at the baseline share.
template<typename Value>
double mostCommon(const std::vector<Cluster>& clusters, double otherwise, Value value) {
    std::map<double, std::size_t> counts;
    for (const Cluster& cluster : clusters)
        if (cluster.look.verticalPosition == document::VerticalPosition::Baseline)
            ++counts[value(cluster)];
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts.end() ? otherwise : most->first;
}

/// The clusters of some runs of a row as a line of their own.
TextRow lineOf(TextRow& row, std::size_t first, std::size_t last) {
    TextRow line;
    line.frame = row.frame;
    line.dropCapLines = first == 0 ? row.dropCapLines : 0;
    line.clusters.assign(std::make_move_iterator(row.clusters.begin() + static_cast<std::ptrdiff_t>(first)),
                         std::make_move_iterator(row.clusters.begin() + static_cast<std::ptrdiff_t>(last)));
    line.clusters.front().gapBefore.kind =
        line.clusters.front().gapBefore.leader == document::TabLeader::None ? Gap::None : Gap::Tab;
    line.fontSize = mostCommon(line.clusters, row.fontSize, [](const Cluster& cluster) { return cluster.look.size; });
    line.baseline = mostCommon(line.clusters, row.baseline, [](const Cluster& cluster) { return cluster.baseline; });
    return line;
}

} // namespace

std::vector<TextRow> buildLines(std::vector<TextRow> rows, const std::vector<TextFrame>& frames,
                                const std::vector<Rule>& rules, const std::vector<Ground>& grounds,
                                const TextParameters& parameters, Diagnostics&) {
    sortByBaseline(rows);
    for (TextRow& row : rows)
        findLeaders(row, parameters);
    const GutterFinder gutters(rows, frames, rules, grounds, parameters);

    // The gutters are asked for before any row is cut, as each row bears witness for its neighbours.
    std::vector<std::vector<std::size_t>> cuts(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::vector<RowRun>& runs = gutters.runsOf(i);
        for (std::size_t run = 1; run < runs.size(); ++run) {
            if (gutters.isGutter(i, run))
                cuts[i].push_back(runs[run].first);
            else if (runs[run].isTabbed)
                rows[i].clusters[runs[run].first].gapBefore.kind = Gap::Tab;
        }
    }
    std::vector<TextRow> lines;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        std::size_t first = 0;
        cuts[i].push_back(rows[i].clusters.size());
        for (const std::size_t cut : cuts[i]) {
            lines.push_back(lineOf(rows[i], first, cut));
            findSmallCaps(lines.back(), parameters);
            first = cut;
        }
    }
    return lines;
}

} // namespace orvane::layout
