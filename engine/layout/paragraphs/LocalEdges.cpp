#include "layout/paragraphs/LocalEdges.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// True when `next` may be set in the same block as the line above it.
bool isSameBlock(std::span<const Line> lines, std::span<const LineMeasure> measures, std::size_t first,
                 std::size_t next, const ParagraphContext& context, const ParagraphParameters::Paragraphs& parameters) {
    const Line& above = lines[next - 1];
    const Line& line = lines[next];
    const double distance = line.baseline - above.baseline;
    const double usual = context.bodyLeading / context.bodyFontSize * line.fontSize;
    if (above.angle != line.angle || above.isVertical != line.isVertical || measures[next].marker ||
        distance < parameters.sameRow * line.fontSize || distance > parameters.looseLeadingTolerance * usual ||
        std::max(above.fontSize, line.fontSize) > parameters.sizeChange * std::min(above.fontSize, line.fontSize))
        return false;
    // The first line may be indented, or hang before the others.
    const double tolerance = parameters.edgeTolerance * line.fontSize;
    const bool isSecond = next - first == 1;
    return isSecond ? std::abs(measures[next].startGap - measures[first].startGap) <=
                          parameters.maximumFirstLine * line.fontSize
                    : std::abs(measures[next].startGap - measures[next - 1].startGap) <= tolerance;
}

/// Several lines end at the edge exactly, their blanks spread to reach it, or (without blanks) more than chance allows.
bool isSpreadTo(double edge, std::span<const LineMeasure> block, double flush,
                const ParagraphParameters::Paragraphs& parameters) {
    int spread = 0;
    int flushLines = 0;
    for (const LineMeasure& line : block) {
        if (line.endGap - edge > flush)
            continue;
        ++flushLines;
        spread += line.meanGap > parameters.stretchedGap * line.blank ? 1 : 0;
    }
    return spread >= parameters.flushLines || flushLines > parameters.flushLines + 1;
}

/// Measured against the edge, most lines are full, and the sentences of most of those go on.
bool isProseTo(double edge, std::span<const Line> lines, std::span<const LineMeasure> block, double slack,
               const ParagraphParameters::Paragraphs& parameters) {
    int full = 0;
    int goingOn = 0;
    for (std::size_t i = 0; i + 1 < block.size(); ++i) {
        if (wouldHaveFitted(block[i], block[i + 1], block[i].endGap - edge, slack))
            continue;
        ++full;
        // Single words below each other are as often a list.
        const bool isText = lines[i].words.size() > 1 || block[i].endsInHan;
        goingOn += isText && sentenceGoesOn(block[i], block[i + 1]) ? 1 : 0;
    }
    return goingOn >= parameters.flushLines && goingOn >= parameters.proseShare * full &&
           full >= parameters.proseShare * static_cast<double>(block.size() - 1);
}

} // namespace

void applyLocalEdges(std::span<const Line> lines, std::span<LineMeasure> measures, const ParagraphContext& context,
                     const ParagraphParameters::Paragraphs& parameters) {
    for (std::size_t first = 0; first < lines.size();) {
        std::size_t end = first + 1;
        while (end < lines.size() && isSameBlock(lines, measures, first, end, context, parameters))
            ++end;
        const auto block = measures.subspan(first, end - first);
        const double size = lines[first].fontSize;
        double edge = block[0].endGap;
        for (const LineMeasure& line : block)
            edge = std::min(edge, line.endGap);
        const bool isOwnEdge = block.size() > 1 && edge > parameters.ownEdge * size &&
                               (isSpreadTo(edge, block, parameters.flushTolerance * size, parameters) ||
                                isProseTo(edge, lines.subspan(first), block, parameters.fitSlack * size, parameters));
        for (LineMeasure& line : block) {
            if (!isOwnEdge)
                break;
            line.endGap -= edge;
            line.endInset = edge;
        }
        first = end;
    }
}

} // namespace orvane::layout
