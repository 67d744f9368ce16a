#pragma once

#include "layout/paragraphs/LineMeasures.h"

#include <map>
#include <span>
#include <utility>

namespace orvane::layout {

/// Which lines of a column are set flush with both edges, learnt from those that run on of themselves. Lists may be
/// ragged in a column of justified text, so lines count by where they start and by their size.
class JustifiedLines {
public:
    JustifiedLines(std::span<const Line> lines, std::span<const LineMeasure> measures,
                   const ParagraphParameters::Paragraphs& parameters);

    /// True when lines of this size that start at `startGap` are nearly all spread to the edge, as long as their
    /// paragraph goes on.
    bool isJustified(double startGap, double fontSize) const;

private:
    struct Count {
        int flush = 0;
        int all = 0;
    };

    using Class = std::pair<long, long>;
    Class classOf(double startGap, double fontSize) const;

    const ParagraphParameters::Paragraphs& m_parameters;
    double m_step = 1; ///< points; starts are counted in classes of this width
    std::map<Class, Count> m_counts;
};

} // namespace orvane::layout
