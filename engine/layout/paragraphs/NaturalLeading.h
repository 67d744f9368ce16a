#pragma once

#include "layout/paragraphs/LineMeasures.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// The distances between baselines within paragraphs, by font size, learnt from lines that run on of themselves: a
/// first word that had no room above tells that nobody pressed a key between two lines.
class NaturalLeading {
public:
    NaturalLeading(std::span<const Line> lines, std::span<const LineMeasure> measures, const ParagraphContext& context,
                   const ParagraphParameters::Paragraphs& parameters);

    /// True when lines of one paragraph may be so far apart.
    bool allows(double fontSize, double distance) const;

private:
    /// Distances that are nearly equal.
    struct Cluster {
        double fontSize = 0;
        double leading = 0;
        int count = 0;
    };

    void keepTrustworthy(std::vector<Cluster> clusters);

    const ParagraphParameters::Paragraphs& m_parameters;
    double m_bodyRatio; ///< leading of the body text, of its font size
    std::vector<Cluster> m_learnt;
};

} // namespace orvane::layout
