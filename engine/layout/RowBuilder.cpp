#include "layout/RowBuilder.h"

#include "layout/Characters.h"
#include "layout/ScriptFinder.h"
#include "layout/TextStrip.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace orvane::layout {
namespace {

void sortByBaseline(std::vector<TextStrip>& strips) {
    std::stable_sort(strips.begin(), strips.end(), [](const TextStrip& a, const TextStrip& b) {
        return std::tie(a.frame, a.baseline) < std::tie(b.frame, b.baseline);
    });
}

/// Whether two strips of one baseline lie on top of each other rather than side by side.
bool isOverprinted(const TextStrip& left, const TextStrip& right, const LayoutParameters::Rows& limits) {
    const double shared = std::min(left.end, right.end) - right.start;
    return shared > limits.overprint * std::min(left.end - left.start, right.end - right.start) &&
           shared > limits.overprintSize * std::min(left.size, right.size);
}

/// Strips of one baseline, side by side; what lies on top of others goes into `layers` behind.
class RowAssembler {
public:
    RowAssembler(const LayoutParameters::Rows& limits, std::vector<TextRow>& rows)
        : m_limits(limits)
        , m_rows(rows) {}

    void assemble(std::vector<TextStrip> strips) {
        while (!strips.empty())
            strips = assembleLayer(std::move(strips));
    }

private:
    /// Makes one row of the strips that stand side by side and returns those that lie on top of them.
    std::vector<TextStrip> assembleLayer(std::vector<TextStrip> strips) {
        std::stable_sort(strips.begin(), strips.end(),
                         [](const TextStrip& a, const TextStrip& b) { return a.start < b.start; });
        std::vector<TextStrip> layer, rest;
        for (TextStrip& strip : strips) {
            if (layer.empty() || strip.isBlank() || layer.back().isBlank() || strip.isScript || layer.back().isScript ||
                strip.start >= layer.back().end) {
                layer.push_back(std::move(strip));
                continue;
            }
            TextStrip tail = splitStrip(layer.back(), strip.start);
            if (layer.back().clusters.empty() || isOverprinted(layer.back(), strip, m_limits) ||
                (!tail.clusters.empty() && isOverprinted(strip, tail, m_limits))) {
                rejoin(layer.back(), std::move(tail));
                rest.push_back(std::move(strip));
                continue;
            }
            layer.push_back(std::move(strip));
            if (!tail.clusters.empty())
                layer.push_back(std::move(tail));
        }
        addRow(layer);
        return rest;
    }

    static void rejoin(TextStrip& strip, TextStrip tail) {
        if (tail.clusters.empty())
            return;
        if (strip.clusters.empty()) {
            strip = std::move(tail);
            return;
        }
        strip.end = std::max(strip.end, tail.end);
        strip.inkCount += tail.inkCount;
        std::move(tail.clusters.begin(), tail.clusters.end(), std::back_inserter(strip.clusters));
    }

    void addRow(std::vector<TextStrip>& layer) {
        if (std::all_of(layer.begin(), layer.end(), [](const TextStrip& strip) { return strip.isBlank(); }))
            return;
        TextRow row;
        row.frame = layer.front().frame;
        std::map<double, std::size_t> sizes;
        std::map<double, std::size_t> baselines;
        for (TextStrip& strip : layer) {
            if (!strip.isScript) {
                sizes[strip.size] += strip.inkCount;
                baselines[strip.baseline] += strip.inkCount;
            }
            row.dropCapLines = std::max(row.dropCapLines, strip.dropCapLines);
            std::move(strip.clusters.begin(), strip.clusters.end(), std::back_inserter(row.clusters));
        }
        const auto isLighter = [](const auto& a, const auto& b) { return a.second < b.second; };
        row.fontSize = std::max_element(sizes.begin(), sizes.end(), isLighter)->first;
        row.baseline = std::max_element(baselines.begin(), baselines.end(), isLighter)->first;
        placeBlanks(row.clusters);
        m_rows.push_back(std::move(row));
    }

    /// Blanks that were painted on their own find their place between the words.
    static void placeBlanks(std::vector<Cluster>& clusters) {
        std::vector<Cluster> ink, blanks;
        for (Cluster& cluster : clusters)
            (isBlank(cluster.text) ? blanks : ink).push_back(std::move(cluster));
        std::stable_sort(blanks.begin(), blanks.end(),
                         [](const Cluster& a, const Cluster& b) { return a.center() < b.center(); });
        clusters.clear();
        auto blank = blanks.begin();
        for (Cluster& cluster : ink) {
            for (; blank != blanks.end() && blank->center() < cluster.center(); ++blank)
                clusters.push_back(std::move(*blank));
            clusters.push_back(std::move(cluster));
        }
        std::move(blank, blanks.end(), std::back_inserter(clusters));
    }

    const LayoutParameters::Rows& m_limits;
    std::vector<TextRow>& m_rows;
};

} // namespace

std::vector<TextRow> buildRows(std::vector<Cluster> clusters, const LayoutParameters& parameters, Diagnostics&) {
    const LayoutParameters::Rows& limits = parameters.rows;
    std::vector<TextStrip> strips = cutStrips(std::move(clusters), parameters);
    sortByBaseline(strips);
    joinScripts(strips, parameters);
    sortByBaseline(strips);

    std::vector<TextRow> rows;
    RowAssembler assembler(limits, rows);
    for (auto first = strips.begin(); first != strips.end();) {
        const auto last = std::find_if(first, strips.end(), [&](const TextStrip& strip) {
            return strip.frame != first->frame ||
                   strip.baseline - first->baseline > limits.baselineTolerance * std::min(first->size, strip.size);
        });
        assembler.assemble({std::make_move_iterator(first), std::make_move_iterator(last)});
        first = last;
    }
    return rows;
}

} // namespace orvane::layout
