#include "layout/text/SpanBuilder.h"

#include "base/Utf8.h"
#include "layout/text/BracketSides.h"
#include "layout/text/LineText.h"
#include "layout/text/LogicalOrder.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace orvane::layout {
namespace {

constexpr char32_t kSoftHyphen = 0xAD;

/// Collects clusters of one look into a span.
class SpanCollector {
public:
    SpanCollector(const TextFrame& frame, const TextParameters::Spans& limits)
        : m_frame(&frame)
        , m_limits(&limits) {}

    bool isEmpty() const { return m_count == 0; }
    bool takes(const Cluster& cluster, bool isRightToLeft) const {
        Look plain = cluster.look;
        plain.horizontalScale = m_look.horizontalScale;
        return m_count > 0 && plain == m_look && cluster.mark == m_mark && isRightToLeft == m_isRightToLeft &&
               std::abs(cluster.look.horizontalScale - m_look.horizontalScale) <= m_limits->scaleChange;
    }
    void add(const Cluster& cluster, bool isRightToLeft) {
        if (m_count == 0) {
            m_look = cluster.look;
            m_mark = cluster.mark;
            m_isRightToLeft = isRightToLeft;
            m_baseline = cluster.baseline;
        } else {
            // The gap on the page lies beside the neighbour, whichever of the two is read first.
            m_spacing += std::max(cluster.start, m_lastStart) - std::min(cluster.end, m_lastEnd);
        }
        m_lastStart = cluster.start;
        m_lastEnd = cluster.end;
        m_size = cluster.size;
        m_box = m_box.united(m_frame->boxToPage(cluster.start, std::max(cluster.end, cluster.start + kHairline),
                                                cluster.baseline - cluster.ascent, cluster.baseline + cluster.descent));
        m_text += cluster.text;
        ++m_count;
    }
    Span finish() const {
        Span span;
        span.text = utf8FromUtf32(m_text);
        span.look = m_look;
        span.box = m_box;
        span.baseline = pageBaseline(*m_frame, m_baseline);
        span.mark = m_mark;
        span.isRightToLeft = m_isRightToLeft;
        const double spacing = m_count > 1 ? m_spacing / static_cast<double>(m_count - 1) : 0;
        if (std::abs(spacing) >= m_limits->leastSpacing * m_size)
            span.look.characterSpacing = std::round(spacing / m_limits->spacingStep) * m_limits->spacingStep;
        return span;
    }
    static double pageBaseline(const TextFrame& frame, double across) {
        const Point point = frame.toPage({0, across});
        const bool isUpright = std::abs(std::remainder(frame.angle + (frame.isVertical ? 90 : 0), 180)) == 90;
        return isUpright ? point.x : point.y;
    }

private:
    /// A mark of no width still has a place, and its box must not count as empty.
    static constexpr double kHairline = 0.01;

    const TextFrame* m_frame; // pointers, so that a collector can be assigned
    const TextParameters::Spans* m_limits;
    std::u32string m_text;
    Look m_look;
    Rect m_box;
    int m_mark = -1;
    bool m_isRightToLeft = false;
    double m_baseline = 0;
    double m_size = 0;
    double m_spacing = 0;
    double m_lastStart = 0;
    double m_lastEnd = 0;
    std::size_t m_count = 0;
};

/// A hyphen that claims to be a soft one breaks a word only where the line ends; elsewhere it is a plain hyphen.
void settleHyphens(std::vector<Cluster>& clusters) {
    for (std::size_t i = 0; i + 1 < clusters.size(); ++i)
        for (char32_t& c : clusters[i].text)
            if (c == kSoftHyphen)
                c = U'-';
}

/// Words of the clusters, which are in logical order.
std::vector<Word> wordsOf(const LogicalLine& logical, const TextFrame& frame, const TextParameters::Spans& limits) {
    std::vector<Word> words;
    SpanCollector collector(frame, limits);
    std::size_t rightToLeft = 0, count = 0;
    const auto finishSpan = [&] {
        if (collector.isEmpty())
            return;
        words.back().spans.push_back(collector.finish());
        words.back().box = words.back().box.united(words.back().spans.back().box);
        words.back().isRightToLeft = 2 * rightToLeft > count;
        collector = SpanCollector(frame, limits);
    };
    for (std::size_t i = 0; i < logical.clusters.size(); ++i) {
        const Cluster& cluster = logical.clusters[i];
        // Numbers in right-to-left text are typed along with it.
        const bool isRightToLeft = logical.isRightToLeft[i] || (logical.isBaseRightToLeft && logical.isNumber[i]);
        if (i == 0 || cluster.gapBefore.kind != Gap::None) {
            finishSpan();
            rightToLeft = count = 0;
            words.emplace_back();
            words.back().gapBefore = cluster.gapBefore.kind;
            words.back().blanksBefore = cluster.gapBefore.blanks;
            words.back().blankBefore = cluster.gapBefore.blank;
            words.back().isTypedBefore = cluster.gapBefore.isTyped;
            words.back().leaderBefore = cluster.gapBefore.leader;
        } else if (!collector.takes(cluster, isRightToLeft)) {
            finishSpan();
        }
        words.back().blanksAfter = cluster.blanksAfter;
        collector.add(cluster, isRightToLeft);
        rightToLeft += logical.isRightToLeft[i];
        ++count;
    }
    finishSpan();
    return words;
}

double startOf(const std::vector<Cluster>& clusters) {
    double start = clusters.front().start;
    for (const Cluster& cluster : clusters)
        start = std::min(start, cluster.start);
    return start;
}

Line lineOf(const TextRow& row, const LogicalLine& logical, const TextFrame& frame, const pdf::PageContent& page,
            const TextParameters::Spans& limits) {
    Line line;
    line.fontSize = row.fontSize;
    line.angle = frame.angle;
    line.isVertical = frame.isVertical;
    line.dropCapLines = row.dropCapLines;
    line.baseline = SpanCollector::pageBaseline(frame, row.baseline);
    line.firstPaintOrder = std::numeric_limits<std::uint32_t>::max();
    for (const Cluster& cluster : logical.clusters)
        line.firstPaintOrder = std::min(line.firstPaintOrder, page.glyphs[cluster.glyph].paintOrder);
    if (frame.angle != std::round(frame.angle / 90) * 90)
        line.baseline = frame.toPage({startOf(logical.clusters), row.baseline}).y;
    line.words = wordsOf(logical, frame, limits);
    measureAnew(line);
    line.isRightToLeft = logical.isBaseRightToLeft;
    return line;
}

/// The lines in logical order, each parallel to its row, whose clusters are moved out.
std::vector<LogicalLine> inLogicalOrder(std::vector<TextRow>& rows) {
    DirectionCount directions;
    for (const TextRow& row : rows)
        directions.add(row.clusters);
    std::vector<LogicalLine> lines;
    lines.reserve(rows.size());
    BracketCount brackets;
    for (TextRow& row : rows) {
        settleHyphens(row.clusters);
        const LogicalLine& line = lines.emplace_back(toLogicalOrder(std::move(row.clusters), directions));
        brackets.add(line.clusters, line.isRightToLeft);
    }
    for (LogicalLine& line : lines)
        settleBrackets(line.clusters, line.isRightToLeft, brackets);
    return lines;
}

} // namespace

std::vector<Line> finishLines(std::vector<TextRow> rows, const std::vector<TextFrame>& frames,
                              const pdf::PageContent& page, const TextParameters& parameters, Diagnostics&) {
    const std::vector<LogicalLine> logical = inLogicalOrder(rows);
    std::vector<Line> lines;
    lines.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        lines.push_back(lineOf(rows[i], logical[i], frames[rows[i].frame], page, parameters.spans));
    std::stable_sort(lines.begin(), lines.end(), [](const Line& a, const Line& b) {
        return std::tie(a.box.top, a.box.left) < std::tie(b.box.top, b.box.left);
    });
    return lines;
}

} // namespace orvane::layout
