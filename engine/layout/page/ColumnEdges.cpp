#include "layout/page/ColumnEdges.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace orvane::layout {
namespace {

/// An end of a line, growing outwards.
struct End {
    double position = 0;
    double fontSize = 0;
};

/// The outermost position near which enough lines end.
double outermostEdge(std::vector<End> ends, const PageParameters::Regions& parameters) {
    if (ends.size() < parameters.minimumEdgeLines)
        return std::max_element(ends.begin(), ends.end(),
                                [](const End& a, const End& b) { return a.position < b.position; })
            ->position;
    std::sort(ends.begin(), ends.end(), [](const End& a, const End& b) { return a.position > b.position; });
    const auto share = static_cast<std::size_t>(parameters.edgeShare * static_cast<double>(ends.size()));
    const std::size_t needed = std::clamp<std::size_t>(share, 1, parameters.edgeLines);
    for (std::size_t i = 0; i + needed < ends.size(); ++i)
        if (ends[i].position - ends[i + needed].position <= parameters.edgeReach * ends[i].fontSize)
            return ends[i].position;
    return ends.front().position;
}

} // namespace

double rightEdgeOf(const Line& line) {
    return endsInHangingStop(line) ? line.box.right - line.fontSize : line.box.right;
}

ColumnSpan findColumnEdges(std::span<const Line> lines, const PageParameters::Regions& parameters) {
    std::vector<End> lefts;
    std::vector<End> rights;
    for (const Line& line : lines) {
        lefts.push_back({-line.box.left, line.fontSize});
        rights.push_back({rightEdgeOf(line), line.fontSize});
    }
    return {-outermostEdge(std::move(lefts), parameters), outermostEdge(std::move(rights), parameters)};
}

ColumnSpan evenedAtMiddle(ColumnSpan span, std::span<const Line> lines, double pageWidth,
                          const PageParameters::Regions& parameters) {
    bool isReached = false;
    for (const Line& line : lines) {
        const double snap = parameters.sameMiddle * line.fontSize;
        if (line.box.right < span.right - snap)
            continue;
        if (std::abs(line.box.centerX() - pageWidth / 2) > snap ||
            line.box.left <= span.left + parameters.titleIndent * line.fontSize)
            return span;
        isReached = true;
    }
    return isReached ? ColumnSpan{span.left, std::max(span.right, pageWidth - span.left)} : span;
}

} // namespace orvane::layout
