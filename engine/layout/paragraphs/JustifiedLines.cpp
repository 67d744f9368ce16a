#include "layout/paragraphs/JustifiedLines.h"

#include <cmath>

namespace orvane::layout {

JustifiedLines::JustifiedLines(std::span<const Line> lines, std::span<const LineMeasure> measures,
                               const ParagraphParameters::Paragraphs& parameters)
    : m_parameters(parameters) {
    if (!lines.empty())
        m_step = 2 * parameters.edgeTolerance * lines.front().fontSize;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const LineMeasure& line = measures[i];
        const double size = lines[i].fontSize;
        if (wouldHaveFitted(line, measures[i + 1], line.endGap, parameters.fitSlack * size))
            continue;
        Count& count = m_counts[classOf(line.startGap, size)];
        ++count.all;
        count.flush += std::abs(line.endGap) <= parameters.flushTolerance * size ? 1 : 0;
    }
}

bool JustifiedLines::isJustified(double startGap, double fontSize) const {
    const auto count = m_counts.find(classOf(startGap, fontSize));
    return count != m_counts.end() && count->second.flush >= m_parameters.justifiedLines &&
           count->second.flush >= m_parameters.justifiedShare * count->second.all;
}

JustifiedLines::Class JustifiedLines::classOf(double startGap, double fontSize) const {
    return {std::lround(startGap / m_step), std::lround(2 * fontSize)};
}

} // namespace orvane::layout
