#include "layout/paragraphs/NaturalLeading.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvane::layout {
namespace {

/// Font sizes that differ by less are one size: points.
constexpr double kSizeStep = 0.5;

} // namespace

NaturalLeading::NaturalLeading(std::span<const Line> lines, std::span<const LineMeasure> measures,
                               const ParagraphContext& context, const ParagraphParameters::Paragraphs& parameters)
    : m_parameters(parameters)
    , m_bodyRatio(context.bodyFontSize > 0 ? context.bodyLeading / context.bodyFontSize : 1.2) {
    std::vector<std::pair<double, double>> samples;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const double distance = lines[i + 1].baseline - lines[i].baseline;
        const double size = lines[i].fontSize;
        if (distance > parameters.sameRow * size && distance < parameters.maximumLeading * size &&
            std::abs(lines[i + 1].fontSize - size) < kSizeStep && !measures[i + 1].marker &&
            !wouldHaveFitted(measures[i], measures[i + 1], measures[i].endGap, parameters.fitSlack * size))
            samples.emplace_back(std::round(size / kSizeStep) * kSizeStep, distance);
    }
    std::sort(samples.begin(), samples.end());
    std::vector<Cluster> clusters;
    for (const auto& [size, distance] : samples) {
        const bool isNew = clusters.empty() || clusters.back().fontSize != size ||
                           distance > parameters.equalLeading * clusters.back().leading;
        if (isNew)
            clusters.push_back({size, distance, 1});
        else
            ++clusters.back().count;
    }
    keepTrustworthy(std::move(clusters));
}

/// Full last lines with space below them are among the samples too: a distance counts that is frequent, and one that is
/// wider than the document's only with several witnesses.
void NaturalLeading::keepTrustworthy(std::vector<Cluster> clusters) {
    for (const Cluster& cluster : clusters) {
        int total = 0;
        for (const Cluster& other : clusters)
            total += other.fontSize == cluster.fontSize ? other.count : 0;
        const bool isUsual = cluster.leading <= m_parameters.leadingTolerance * m_bodyRatio * cluster.fontSize;
        const bool isFrequent = cluster.count >= m_parameters.leadingShare * total;
        if (isFrequent && (isUsual || cluster.count >= m_parameters.leadingSamples))
            m_learnt.push_back(cluster);
    }
}

bool NaturalLeading::allows(double fontSize, double distance) const {
    bool isLearnt = false;
    for (const Cluster& cluster : m_learnt) {
        if (std::abs(cluster.fontSize - fontSize) >= kSizeStep)
            continue;
        // Characters of other fonts and superscripts push single lines apart a little.
        if (distance <= m_parameters.leadingTolerance * cluster.leading)
            return true;
        isLearnt = true;
    }
    return !isLearnt && distance <= m_parameters.looseLeadingTolerance * m_bodyRatio * fontSize;
}

} // namespace orvane::layout
