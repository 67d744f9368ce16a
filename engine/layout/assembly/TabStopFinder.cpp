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

/// Whether the paragraph goes on below the line.
bool goesOnBelow(const DraftParagraph& paragraph, const DraftPiece& piece, std::size_t line) {
    if (line + 1 == piece.text.lines.size() && &piece == &paragraph.pieces.back())
        return false;
    const std::vector<std::size_t>& breaks = piece.text.hardBreaks;
    return std::find(breaks.begin(), breaks.end(), line) == breaks.end();
}

TabStop startStop(const Segment& segment) {
    return {twipsFromPoints(segment.start), TabAlignment::Start, segment.leader};
}

TabStop stopOf(const Segment& segment, double columnWidth, bool isLast, bool isOnlyLine,
               const AssemblyParameters::Tabs& limits) {
    const bool endsAtEdge = isLast && std::abs(segment.end - columnWidth) <= limits.edgeTolerance;
    // A running head may be wider than the text: its page number ends at an edge of its own.
    const bool endsBeyond = isLast && isOnlyLine && segment.end > columnWidth && 2 * segment.start > columnWidth;
    if (endsAtEdge || endsBeyond || segment.leader != document::TabLeader::None)
        return {twipsFromPoints(endsAtEdge ? columnWidth : segment.end), TabAlignment::End, segment.leader};
    const double middle = (segment.start + segment.end) / 2;
    if (std::abs(middle - columnWidth / 2) <= limits.centerTolerance)
        return {twipsFromPoints(columnWidth / 2), TabAlignment::Center, segment.leader};
    return startStop(segment);
}

} // namespace

std::vector<TabStop> findTabStops(const DraftParagraph& paragraph, const LayoutParameters& parameters) {
    const AssemblyParameters::Tabs& limits = parameters.tabs;
    std::vector<TabStop> stops;
    std::size_t skipped = paragraph.labelWords;
    const bool isOnlyLine = paragraph.pieces.size() == 1 && paragraph.pieces.front().text.lines.size() == 1;
    for (const DraftPiece& piece : paragraph.pieces) {
        const double columnWidth = piece.column.right - piece.column.left;
        for (std::size_t l = 0; l < piece.text.lines.size(); ++l) {
            const Line& line = piece.text.lines[l];
            const std::size_t firstWord = std::min(skipped, line.words.size());
            skipped -= firstWord;
            // The gap behind a label belongs to the numbering.
            const std::vector<Segment> segments = segmentsOf(line, piece.column, firstWord > 0 ? firstWord + 1 : 0);
            for (std::size_t i = 0; i < segments.size(); ++i) {
                // The edge of a hanging indent is a tab stop by itself.
                const bool isAtIndent = piece.text.firstLine < 0 &&
                                        std::abs(segments[i].start - piece.text.indentStart) <= limits.edgeTolerance;
                if (isAtIndent)
                    continue;
                const bool isLast = i + 1 == segments.size();
                // Text that fills most of its line ends at the edge because it goes on, not because it was set there.
                const bool isFull = isLast && segments[i].leader == document::TabLeader::None &&
                                    2 * segments[i].start < columnWidth && goesOnBelow(paragraph, piece, l);
                stops.push_back(isFull ? startStop(segments[i])
                                       : stopOf(segments[i], columnWidth, isLast, isOnlyLine, limits));
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
