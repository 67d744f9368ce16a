#include "layout/NaturalLeading.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {

NaturalLeading::NaturalLeading(std::span<const Line> lines, std::span<const LineMeasure> measures,
                               const ParagraphContext& context, const LayoutParameters::Paragraphs& parameters)
    : m_bodyRatio(context.bodyFontSize > 0 ? context.bodyLeading / context.bodyFontSize : 1.2) {
    std::vector<std::pair<double, double>> samples;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const double distance = lines[i + 1].baseline - lines[i].baseline;
        const double size = lines[i].fontSize;
        // A first word that had no room above tells that nobody pressed a key between the two lines.
        if (distance > parameters.sameRow * size && distance < parameters.maximumLeading * size &&
            std::abs(lines[i + 1].fontSize - size) < 0.5 && !measures[i + 1].marker &&
            !wouldHaveFitted(measures[i], measures[i + 1], measures[i].endGap, parameters.fitSlack * size))
            samples.emplace_back(std::round(size * 2) / 2, distance);
    }
    std::sort(samples.begin(), samples.end());
    // The lower quartile: some full lines are the last of their paragraph, with space below.
    for (std::size_t from = 0; from < samples.size();) {
        std::size_t to = from;
        while (to < samples.size() && samples[to].first == samples[from].first)
            ++to;
        const double size = samples[from].first;
        const double leading = samples[from + (to - from) / 4].second;
        // Few samples that are wider than usual may all be space between paragraphs.
        if (leading <= parameters.leadingTolerance * m_bodyRatio * size ||
            static_cast<int>(to - from) >= parameters.leadingSamples)
            m_learnt.emplace_back(size, leading);
        from = to;
    }
}

NaturalLeading::Estimate NaturalLeading::forSize(double fontSize) const {
    const auto nearest = std::min_element(m_learnt.begin(), m_learnt.end(), [fontSize](const auto& a, const auto& b) {
        return std::abs(a.first - fontSize) < std::abs(b.first - fontSize);
    });
    if (nearest != m_learnt.end() && std::abs(nearest->first - fontSize) < 0.5)
        return {nearest->second, true};
    return {m_bodyRatio * fontSize, false};
}

} // namespace orvane::layout
