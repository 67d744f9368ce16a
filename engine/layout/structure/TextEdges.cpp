#include "layout/structure/TextEdges.h"

#include "base/Utf8.h"
#include "layout/support/Tally.h"
#include "layout/support/TidyLength.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace orvane::layout {
namespace {

using document::Alignment;

constexpr double kNone = std::numeric_limits<double>::infinity();

/// Distances from the sides of the page, so that left-to-right and right-to-left text are measured alike.
struct LineEdge {
    double start = kNone; ///< of lines that start at their column's edge, in the first column
    double end = kNone;   ///< of lines in the last column
    double room = 0; ///< what the first word of the next line would have needed; 0 when the line ends its paragraph
    bool isFlush = false; ///< a justified line, which ends at the edge
};

class EdgeFinder {
public:
    EdgeFinder(const DocumentDraft& draft, const LayoutParameters& parameters)
        : m_draft(draft)
        , m_limits(parameters.pageSetup) {}

    void read(std::size_t firstPage, std::size_t lastPage) {
        for (const DraftBlock& block : m_draft.blocks) {
            if (const DraftParagraph* paragraph = block.paragraph()) {
                for (const DraftPiece& piece : paragraph->pieces)
                    if (piece.page >= firstPage && piece.page <= lastPage)
                        readPiece(piece);
            } else if (block.page >= firstPage && block.page <= lastPage) {
                m_objects = m_objects.united(block.box);
                if (const auto* table = std::get_if<DraftTable>(&block.value))
                    readTable(table->table, block);
            }
        }
        m_pageWidth = m_draft.pages[firstPage].width;
    }

    TextEdges find() const {
        if (m_edges.empty())
            return edgesOfObjects();
        double start = findStart();
        double end = findEnd(start);
        // A few lines between large tables may be titles in the middle, or stand anywhere.
        if (m_rowStarts.size() > m_edges.size()) {
            const double rowStart = *mostFrequent(m_rowStarts, m_limits.sameEdge);
            if (start - rowStart > m_limits.farInside) {
                start = rowStart;
                end = *mostFrequent(m_rowEnds, m_limits.sameEdge);
            }
        }
        return m_isRightToLeft > 0 ? TextEdges{end, m_pageWidth - start} : TextEdges{start, m_pageWidth - end};
    }

private:
    void readPiece(const DraftPiece& piece) {
        const double width = m_draft.pages[piece.page].width;
        const std::vector<Line>& lines = piece.text.lines;
        if (lines.front().angle != 0)
            return;
        const bool isInFirstColumn = piece.columnIndex == 0;
        const bool isInLastColumn =
            static_cast<std::size_t>(piece.columnIndex) + 1 >= columnsOf(piece.page, piece.band);
        const bool isAtStart = piece.text.alignment == Alignment::Start || piece.text.alignment == Alignment::Justified;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const Line& line = lines[i];
            const bool goesOn = i + 1 < lines.size() && isAtStart;
            LineEdge edge;
            if (isInFirstColumn && isAtStart)
                edge.start = line.isRightToLeft ? width - line.box.right : line.box.left;
            if (isInLastColumn)
                edge.end = line.isRightToLeft ? line.box.left : width - line.box.right;
            if (endsInHangingStop(line))
                edge.end += line.fontSize;
            edge.room = goesOn ? roomFor(lines[i + 1], line.fontSize) : 0;
            // Ideographs end in line of themselves, with less than one of them free.
            edge.isFlush =
                goesOn && isInLastColumn && piece.text.alignment == Alignment::Justified && !endsWithoutBlanks(line);
            m_edges.push_back(edge);
            m_isRightToLeft += line.isRightToLeft ? 1 : -1;
        }
    }

    /// What the first word of a line would have needed behind the line above; two of its characters where they stand
    /// without blanks, as some may not start a line.
    double roomFor(const Line& next, double fontSize) const {
        const std::u32string text = utf32FromUtf8(textOf(next.words.front()));
        if (!text.empty() && isWithoutBlanks(text.front()))
            return 2 * next.fontSize;
        return next.words.front().box.width() + m_limits.blank * fontSize;
    }

    void readTable(const TableDraft& table, const DraftBlock& block) {
        const double width = m_draft.pages[block.page].width;
        if (columnsOf(block.page, block.band) > 1 || table.box.left < 0 || table.box.right > width)
            return;
        m_hasRightToLeftTable = m_hasRightToLeftTable || table.isRightToLeft;
        const std::size_t rows = table.rowEdges.size() - 1;
        m_rowStarts.insert(m_rowStarts.end(), rows, table.isRightToLeft ? width - table.box.right : table.box.left);
        m_rowEnds.insert(m_rowEnds.end(), rows, table.isRightToLeft ? table.box.left : width - table.box.right);
    }

    std::size_t columnsOf(std::size_t page, int band) const {
        const std::vector<Band>& bands = m_draft.pages[page].bands;
        const auto index = static_cast<std::size_t>(band);
        return index < bands.size() ? bands[index].columns.size() : 1;
    }

    /// The outermost edge at which enough lines start.
    double findStart() const {
        std::vector<double> starts;
        for (const LineEdge& edge : m_edges)
            if (edge.start != kNone)
                starts.push_back(edge.start);
        if (starts.empty())
            return outermost(&LineEdge::end);
        std::sort(starts.begin(), starts.end());
        const double enough = std::max(1.0, m_limits.edgeShare * static_cast<double>(starts.size()));
        for (std::size_t i = 0; i < starts.size(); ++i) {
            const auto last = std::upper_bound(starts.begin(), starts.end(), starts[i] + m_limits.sameEdge);
            const auto count = static_cast<std::size_t>(last - starts.begin()) - i;
            if (static_cast<double>(count) >= enough)
                return starts[i + count / 2];
        }
        return starts.front();
    }

    double outermost(double LineEdge::*field) const {
        double least = m_pageWidth;
        for (const LineEdge& edge : m_edges)
            least = std::min(least, edge.*field);
        return std::max(0.0, least);
    }

    /// The end edge that justified lines show; where there are none, one that fits all lines but leaves no room for the
    /// words that were taken to the next line.
    double findEnd(double start) const {
        std::vector<double> flush;
        for (const LineEdge& edge : m_edges)
            if (edge.isFlush)
                flush.push_back(edge.end);
        if (flush.size() >= static_cast<std::size_t>(m_limits.flushLines)) {
            std::sort(flush.begin(), flush.end());
            return flush[static_cast<std::size_t>(m_limits.edgeShare * static_cast<double>(flush.size()))];
        }
        const Steps steps = endSteps(start);
        const EndRange range = agreedRange(steps);
        // Most people leave both margins alike, and a few lines that were ended by hand do not speak against that.
        if (isAgreedBy(steps, start, range.agreeing))
            return start;
        // A line as wide as its column to the last hair may find no room in another program.
        const double highest = std::max(0.0, range.to - m_limits.roomSlack);
        return tidyLength(std::min(range.from + m_limits.roomSlack, highest), highest, start, m_limits.roomSlack);
    }

    /// Places where a line begins (1) or ceases (-1) to agree with the end edge being there, in order.
    using Steps = std::vector<std::pair<double, int>>;

    /// Where the end edge may lie.
    struct EndRange {
        double from = 0;
        double to = 0;
        int agreeing = 0; ///< lines
    };

    /// Each line ends before the edge, and one that goes on left no room for the next word.
    Steps endSteps(double start) const {
        const double widest = m_pageWidth - start - outermost(&LineEdge::end);
        Steps steps;
        for (const LineEdge& edge : m_edges) {
            if (edge.end == kNone)
                continue;
            const double end = std::max(0.0, edge.end);
            // A line much narrower than others is that of a box, or was ended by hand; the edge is not near it.
            const bool tellsRoom = edge.room > 0 && m_pageWidth - start - end >= m_limits.fullWidth * widest;
            steps.emplace_back(tellsRoom ? std::max(0.0, edge.end - edge.room) : 0.0, 1);
            steps.emplace_back(end, -1);
        }
        // Lines begin to agree before others cease to at the same place.
        std::sort(steps.begin(), steps.end(), [](const auto& a, const auto& b) {
            return a.first != b.first ? a.first < b.first : a.second > b.second;
        });
        return steps;
    }

    /// The range that most lines agree on, the outermost if there are several. Some stand in boxes that have edges of
    /// their own.
    static EndRange agreedRange(const Steps& steps) {
        EndRange best;
        int agreeing = 0;
        bool isOpen = false;
        for (const auto& [place, step] : steps) {
            agreeing += step;
            if (agreeing > best.agreeing) {
                best.agreeing = agreeing;
                best.from = place;
                isOpen = true;
            } else if (isOpen && step < 0) {
                best.to = place;
                isOpen = false;
            }
        }
        return best;
    }

    /// Whether nearly as many lines agree with an edge there as agree at all.
    bool isAgreedBy(const Steps& steps, double place, int most) const {
        int agreeing = 0;
        for (const auto& [where, step] : steps)
            if (where <= place + (step > 0 ? m_limits.roomSlack : -m_limits.roomSlack))
                agreeing += step;
        return agreeing >= (1 - m_limits.dissent) * most;
    }

    TextEdges edgesOfObjects() const {
        double margin = m_limits.usualMargin;
        if (!m_objects.isEmpty()) {
            // A table that is wider than the text reaches far into a margin, or beyond the paper: the other side, or
            // the usual width, tells more.
            const auto [narrow, wide] = std::minmax({m_objects.left, m_pageWidth - m_objects.right});
            const double least = margin / 4;
            margin = narrow >= least ? narrow : wide >= least ? wide : margin;
        }
        // What is read from the right reaches into the margin on the left. Not all word processors let it.
        const double left = m_hasRightToLeftTable ? std::max(0.0, std::min(margin, m_objects.left)) : margin;
        return {left, m_pageWidth - margin};
    }

    const DocumentDraft& m_draft;
    const StructureParameters::PageSetup& m_limits;
    std::vector<LineEdge> m_edges;   ///< of the lines of paragraphs
    std::vector<double> m_rowStarts; ///< of the tables' rows, from the side where lines start
    std::vector<double> m_rowEnds;   ///< likewise
    bool m_hasRightToLeftTable = false;
    Rect m_objects;
    double m_pageWidth = 0;
    int m_isRightToLeft = 0; ///< lines more than left-to-right ones
};

} // namespace

TextEdges findTextEdges(const DocumentDraft& draft, std::size_t firstPage, std::size_t lastPage,
                        const LayoutParameters& parameters) {
    EdgeFinder finder(draft, parameters);
    finder.read(firstPage, lastPage);
    return finder.find();
}

} // namespace orvane::layout
