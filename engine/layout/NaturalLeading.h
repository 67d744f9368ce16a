#pragma once

#include "layout/LineMeasures.h"

#include <span>
#include <utility>
#include <vector>

namespace orvane::layout {

/// The distance between baselines within paragraphs, by font size, learnt from lines that run on of themselves.
class NaturalLeading {
public:
    NaturalLeading(std::span<const Line> lines, std::span<const LineMeasure> measures, const ParagraphContext& context,
                   const LayoutParameters::Paragraphs& parameters);

    struct Estimate {
        double leading = 0;    ///< points
        bool isLearnt = false; ///< false: scaled from the document's usual leading
    };
    Estimate forSize(double fontSize) const;

private:
    double m_bodyRatio;                              ///< leading of the body text, of its font size
    std::vector<std::pair<double, double>> m_learnt; ///< font size and leading, ascending
};

} // namespace orvane::layout
