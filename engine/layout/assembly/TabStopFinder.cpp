#include "layout/assembly/TabStopFinder.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

using document::TabAlignment;
using document::TabStop;

/// What stands between two tabulators, or a tabulator and the end of the line; from the column's start edge.
struct Segment {
    double start = 0;
    double end = 0;
    document::TabLeader leader = document::TabLeader::None;
};

std::vector<Segment> segmentsOf(const Line& line, const ColumnSpan& column, std::size_t firstWord) {
    std::vector<Segment> segments;
    for (std::size_t i = firstWord; i < line.words.size(); ++i) {
        const Word& word = line.words[i];
        const double start = line.isRightToLeft ? column.right - word.box.right : word.box.left - column.left;
        const double end = line.isRightToLeft ? column.right - word.box.left : word.box.right - column.left;
        if (i > 0 && isTabulator(word))
            segments.push_back({start, end, word.leaderBefore});
        else if (!segments.empty())
            segments.back().end = end;
    }
    return segments;
}

TabStop stopOf(const Segment& segment, double columnWidth, bool isLast, const AssemblyParameters::Tabs& limits) {
    const bool endsAtEdge = isLast && std::abs(segment.end - columnWidth) <= limits.edgeTolerance;
    if (endsAtEdge || segment.leader != document::TabLeader::None)
        return {twipsFromPoints(endsAtEdge ? columnWidth : segment.end), TabAlignment::End, segment.leader};
    const double middle = (segment.start + segment.end) / 2;
    if (std::abs(middle - columnWidth / 2) <= limits.centerTolerance)
        return {twipsFromPoints(columnWidth / 2), TabAlignment::Center, segment.leader};
    return {twipsFromPoints(segment.start), TabAlignment::Start, segment.leader};
}

} // namespace

std::vector<TabStop> findTabStops(const DraftParagraph& paragraph, const LayoutParameters& parameters) {
    const AssemblyParameters::Tabs& limits = parameters.tabs;
    std::vector<TabStop> stops;
    std::size_t skipped = paragraph.labelWords;
    for (const DraftPiece& piece : paragraph.pieces) {
        const double columnWidth = piece.column.right - piece.column.left;
        for (const Line& line : piece.text.lines) {
            const std::size_t firstWord = std::min(skipped, line.words.size());
            skipped -= firstWord;
            // The gap behind a label belongs to the numbering.
            const std::vector<Segment> segments = segmentsOf(line, piece.column, firstWord > 0 ? firstWord + 1 : 0);
            for (std::size_t i = 0; i < segments.size(); ++i) {
                // The edge of a hanging indent is a tab stop by itself.
                const bool isAtIndent = piece.text.firstLine < 0 &&
                                        std::abs(segments[i].start - piece.text.indentStart) <= limits.edgeTolerance;
                if (!isAtIndent)
                    stops.push_back(stopOf(segments[i], columnWidth, i + 1 == segments.size(), limits));
            }
        }
    }
    std::sort(stops.begin(), stops.end(), [](const TabStop& a, const TabStop& b) { return a.position < b.position; });
    const std::int32_t same = twipsFromPoints(limits.sameStop).value;
    const auto isSame = [same](const TabStop& a, const TabStop& b) {
        return b.position.value - a.position.value <= same;
    };
    stops.erase(std::unique(stops.begin(), stops.end(), isSame), stops.end());
    return stops;
}

} // namespace orvane::layout
