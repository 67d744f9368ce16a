#include "layout/text/RowBuilder.h"

#include "layout/text/Characters.h"
#include "layout/text/ScriptFinder.h"
#include "layout/text/StripOrder.h"
#include "layout/text/TextStrip.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <tuple>

namespace orvane::layout {
namespace {

void sortByBaseline(std::vector<TextStrip>& strips) {
    std::stable_sort(strips.begin(), strips.end(), [](const TextStrip& a, const TextStrip& b) {
        return std::tie(a.frame, a.baseline) < std::tie(b.frame, b.baseline);
    });
}

/// Which stretches of a row are taken by ink.
class InkedStretches {
public:
    /// The length of `cluster` that lies on ink.
    double sharedWith(const Cluster& cluster) const {
        double shared = 0;
        auto next = m_endOfStart.lower_bound(cluster.start);
        if (next != m_endOfStart.begin())
            shared += overlap(cluster.start, cluster.end, std::prev(next)->first, std::prev(next)->second);
        for (; next != m_endOfStart.end() && next->first < cluster.end; ++next)
            shared += overlap(cluster.start, cluster.end, next->first, next->second);
        return shared;
    }
    void add(const Cluster& cluster) {
        double& end = m_endOfStart.try_emplace(cluster.start, cluster.end).first->second;
        end = std::max(end, cluster.end);
    }

private:
    std::map<double, double> m_endOfStart;
};

/// Makes rows of the strips of one baseline. Strips that lie on top of others, rather than in their gaps, make a row of
/// their own.
class RowAssembler {
public:
    RowAssembler(const TextParameters& parameters, std::vector<TextRow>& rows)
        : m_parameters(parameters)
        , m_rows(rows) {}

    void assemble(std::vector<TextStrip> strips) {
        std::stable_sort(strips.begin(), strips.end(),
                         [](const TextStrip& a, const TextStrip& b) { return a.start < b.start; });
        while (!strips.empty())
            strips = assembleLayer(std::move(strips));
    }

private:
    /// Makes one row of the strips that stand side by side and returns those that lie on top of them.
    std::vector<TextStrip> assembleLayer(std::vector<TextStrip> strips) {
        InkedStretches inked;
        std::vector<TextStrip> layer, rest;
        for (TextStrip& strip : strips) {
            if (!strip.isBlank() && !strip.isScript && liesOn(strip, inked)) {
                rest.push_back(std::move(strip));
                continue;
            }
            for (const Cluster& cluster : strip.clusters)
                if (!strip.isScript && !isBlank(cluster.text))
                    inked.add(cluster);
            layer.push_back(std::move(strip));
        }
        addRow(std::move(layer));
        return rest;
    }

    bool liesOn(const TextStrip& strip, const InkedStretches& inked) const {
        double shared = 0, width = 0;
        for (const Cluster& cluster : strip.clusters) {
            if (isBlank(cluster.text))
                continue;
            shared += inked.sharedWith(cluster);
            width += cluster.width();
        }
        return shared > m_parameters.rows.overprint * width && shared > m_parameters.rows.overprintSize * strip.size;
    }

    void addRow(std::vector<TextStrip> layer) {
        TextRow row;
        row.frame = layer.front().frame;
        std::map<double, std::size_t> sizes;
        std::map<double, std::size_t> baselines;
        for (const TextStrip& strip : layer) {
            sizes[strip.size] += strip.isScript ? 0 : strip.inkCount;
            baselines[strip.baseline] += strip.isScript ? 0 : strip.inkCount;
            row.dropCapLines = std::max(row.dropCapLines, strip.dropCapLines);
        }
        const auto isLighter = [](const auto& a, const auto& b) { return a.second < b.second; };
        row.fontSize = std::max_element(sizes.begin(), sizes.end(), isLighter)->first;
        row.baseline = std::max_element(baselines.begin(), baselines.end(), isLighter)->first;
        row.clusters = inReadingOrder(std::move(layer), m_parameters);
        if (std::any_of(row.clusters.begin(), row.clusters.end(), [](const Cluster& c) { return !isBlank(c.text); }))
            m_rows.push_back(std::move(row));
    }

    const TextParameters& m_parameters;
    std::vector<TextRow>& m_rows;
};

} // namespace

std::vector<TextRow> buildRows(std::vector<Cluster> clusters, const TextParameters& parameters, Diagnostics&) {
    const TextParameters::Rows& limits = parameters.rows;
    std::vector<TextStrip> strips = cutStrips(std::move(clusters), parameters);
    sortByBaseline(strips);
    joinShifted(strips, parameters);
    sortByBaseline(strips);
    joinScripts(strips, parameters);
    sortByBaseline(strips);

    std::vector<TextRow> rows;
    RowAssembler assembler(parameters, rows);
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
