#include "layout/paragraphs/ParagraphBreaks.h"

#include "layout/formulas/FormulaFinder.h"
#include "layout/paragraphs/JustifiedLines.h"
#include "layout/paragraphs/NaturalLeading.h"
#include "layout/paragraphs/RaggedLines.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane::layout {
namespace {

/// Signs that begin what programs print and answers in a dialogue, and hardly ever two lines of one text.
constexpr std::u32string_view kSigns = U"-\u2013\u2014#*/$%>+|@";

/// A letter that goes on with no sentence.
bool startsLabel(const Line& line) {
    const char32_t first = firstCharacterOf(line);
    return isLetter(first) && !isLowerCase(first);
}

/// Walks down the lines of a column, with the paragraph that began at `m_first` growing until a line does not belong to
/// it.
class BreakFinder {
public:
    BreakFinder(std::span<const Line> lines, std::span<const LineMeasure> measures, const ParagraphContext& context,
                const ParagraphParameters::Paragraphs& parameters)
        : m_lines(lines)
        , m_measures(measures)
        , m_parameters(parameters)
        , m_leading(lines, measures, context, parameters)
        , m_justified(lines, measures, parameters)
        , m_slack(std::max(parameters.fitSlack, findRaggedRoom(lines, measures, parameters))) {}

    std::vector<BreakReason> run() {
        std::vector<BreakReason> reasons;
        for (std::size_t next = 0; next < m_lines.size(); ++next) {
            const BreakReason reason = next == 0 ? BreakReason::First : reasonAt(next);
            if (reason != BreakReason::None)
                m_first = next;
            else
                m_lastHang = m_measures[next].startGap - m_measures[m_first].startGap;
            reasons.push_back(reason);
        }
        return reasons;
    }

private:
    BreakReason reasonAt(std::size_t next) const {
        if (standsElsewhere(next))
            return BreakReason::Position;
        if (isFormulaLine(m_lines[next]) || isFormulaLine(m_lines[next - 1]))
            return BreakReason::Formula;
        if (isListItem(next) || isNextNote(next))
            return BreakReason::Marker;
        if (hasSpaceAbove(next))
            return BreakReason::Leading;
        if (looksDifferent(next))
            return BreakReason::Look;
        if (isContentsRow(next))
            return BreakReason::Leader;
        if (isRowLikeTheOneAbove(next))
            return BreakReason::Row;
        if (isOtherwiseIndented(next))
            return BreakReason::Indent;
        if (wouldFitAbove(next))
            return BreakReason::Fitted;
        if (followsShortLine(next))
            return BreakReason::ShortLine;
        return BreakReason::None;
    }

    bool standsElsewhere(std::size_t next) const {
        const Line& a = m_lines[next - 1];
        const Line& b = m_lines[next];
        return a.angle != b.angle || a.isVertical != b.isVertical || a.isRightToLeft != b.isRightToLeft ||
               (!a.isVertical && a.angle == 0 && b.baseline - a.baseline < m_parameters.sameRow * a.fontSize);
    }

    bool isListItem(std::size_t next) const {
        const LineMeasure& line = m_measures[next];
        if (!line.marker)
            return false;
        const bool standsOut = line.marker->kind == MarkerKind::Bullet || line.marker->kind == MarkerKind::Box ||
                               line.marker->isSeparated || !line.marker->isWholeWord;
        if (standsOut && !line.hasLeader)
            return true;
        const LineMeasure& first = m_measures[m_first];
        if (first.marker && isSuccessor(*first.marker, *line.marker) && sameEdge(first.startGap, line.startGap, next))
            return true;
        // A number by chance at the start of a line stands at the edge of its paragraph, and the next line below it.
        const bool hangs = next + 1 < m_lines.size() && line.textStart > line.startGap &&
                           sameEdge(m_measures[next + 1].startGap, line.textStart, next) &&
                           !sameEdge(m_measures[next + 1].startGap, line.startGap, next);
        return hangs && !sameEdge(line.startGap, bodyStart(next), next);
    }

    /// Notes below a table, line by line: the line begins with a raised mark as the paragraph does.
    bool isNextNote(std::size_t next) const {
        const auto beginsRaised = [](const Line& line) {
            return !line.words.empty() &&
                   line.words.front().spans.front().look.verticalPosition == document::VerticalPosition::Superscript;
        };
        return beginsRaised(m_lines[m_first]) && beginsRaised(m_lines[next]);
    }

    bool hasSpaceAbove(std::size_t next) const {
        const double size = std::max(m_lines[next].fontSize, m_lines[next - 1].fontSize);
        const double distance = distanceAbove(next);
        if (distance > m_parameters.maximumLeading * size)
            return true;
        if (sentenceRunsOn(next))
            return false;
        // What the paragraph did so far is the best witness, then the line below, then the rest of the column.
        if (next - m_first >= 2) {
            const double usual =
                (m_lines[next - 1].baseline - m_lines[m_first].baseline) / static_cast<double>(next - 1 - m_first);
            if (distance <= m_parameters.leadingTolerance * usual)
                return false;
            // The first step alone may be a short one: lines that are set closer lower their first line less.
            if (next - m_first > 2)
                return true;
        }
        return !runsOnAtSameDistance(next, distance) && !m_leading.allows(size, distance);
    }

    /// The line above is full, and what it says goes on here in a way that no paragraph starts.
    bool sentenceRunsOn(std::size_t next) const {
        const LineMeasure& above = m_measures[next - 1];
        const LineMeasure& line = m_measures[next];
        const bool goesOn = line.startsLowerCase || (above.endsInHan && line.startsInHan);
        return goesOn && !above.endsSentence && above.endGap <= m_parameters.endAligned * above.width &&
               !looksDifferent(next) && !wouldHaveFitted(above, line, above.endGap, m_slack * m_lines[next].fontSize);
    }

    /// The line below runs on of itself, and is as far from `next` as this is from the line above.
    bool runsOnAtSameDistance(std::size_t next, double distance) const {
        const std::size_t below = next + 1;
        if (below >= m_lines.size() || m_measures[below].marker || standsElsewhere(below) || looksDifferent(below))
            return false;
        const double other = distanceAbove(below);
        return std::max(distance, other) <= m_parameters.equalLeading * std::min(distance, other) &&
               !wouldHaveFitted(m_measures[next], m_measures[below], m_measures[next].endGap,
                                m_parameters.fitSlack * m_lines[next].fontSize);
    }

    /// Whole lines of another size or weight. A line of both looks, or a bold passage that goes on, is no change.
    bool looksDifferent(std::size_t next) const {
        const LineMeasure& above = m_measures[next - 1];
        const LineMeasure& line = m_measures[next];
        if (above.smallestSize > m_parameters.sizeChange * line.largestSize ||
            line.smallestSize > m_parameters.sizeChange * above.largestSize)
            return true;
        return above.endsBold != line.startsBold && (isBoldSoFar(next) || line.isBold);
    }

    bool isBoldSoFar(std::size_t next) const {
        return std::all_of(m_measures.begin() + static_cast<std::ptrdiff_t>(m_first),
                           m_measures.begin() + static_cast<std::ptrdiff_t>(next),
                           [](const LineMeasure& line) { return line.isBold; });
    }

    bool isContentsRow(std::size_t next) const {
        return m_measures[next - 1].hasLeader || m_measures[next - 1].isFiller != m_measures[next].isFiller ||
               areFields(next);
    }

    /// Whether two lines of a form follow each other, each with a label before its strokes to write on.
    bool areFields(std::size_t next) const {
        const LineMeasure& above = m_measures[next - 1];
        const LineMeasure& line = m_measures[next];
        return above.endsInField && line.endsInField && !above.isFiller && !line.isFiller && startsLabel(m_lines[next]);
    }

    bool isRowLikeTheOneAbove(std::size_t next) const {
        const LineMeasure& above = m_measures[next - 1];
        const LineMeasure& line = m_measures[next];
        const bool areFieldsAligned = above.field >= 0 && line.field >= 0 && above.field != line.field &&
                                      sameEdge(above.fieldStart, line.fieldStart, next);
        return areFieldsAligned || beginWithSameSign(next) ||
               (above.tabStart && line.tabStart && sameEdge(*above.tabStart, *line.tabStart, next));
    }

    /// Whether both lines begin with the same word, a sign and no amount: what programs print, "-rw-r--r--", or people
    /// answer, "–".
    bool beginWithSameSign(std::size_t next) const {
        const Line& above = m_lines[next - 1];
        const Line& line = m_lines[next];
        if (line.words.size() < 2 || above.words.size() < 2 ||
            kSigns.find(firstCharacterOf(line)) == std::u32string_view::npos)
            return false;
        const std::string word = textOf(line.words.front());
        return word == textOf(above.words.front()) && word.find_first_of("0123456789") == std::string::npos;
    }

    bool isOtherwiseIndented(std::size_t next) const {
        if (pairAlignment(next) != PairAlignment::Start)
            return false;
        const LineMeasure& line = m_measures[next];
        const LineMeasure& first = m_measures[m_first];
        if (sentenceRunsOn(next) && std::abs(line.startGap - m_measures[next - 1].startGap) <=
                                        m_parameters.maximumFirstLine * m_lines[next].fontSize)
            return false;
        if (next - m_first >= 2)
            return !sameEdge(line.startGap, m_measures[next - 1].startGap, next);
        const double step = line.startGap - first.startGap;
        if (std::abs(step) <= tolerance(next))
            return false;
        if (step < 0)
            return -step > m_parameters.maximumFirstLine * m_lines[next].fontSize;
        // Below a label's line the text hangs, be it where the text behind the label starts or at a tabulator.
        if (first.marker && first.marker->hasPunctuation &&
            step <= m_parameters.maximumFirstLine * m_lines[next].fontSize)
            return false;
        if (first.marker && sameEdge(line.startGap, first.textStart, next))
            return false;
        // A term, a tabulator, and what is said of it.
        if (first.tabStart && sameEdge(line.startGap, *first.tabStart, next))
            return false;
        // A step to the right hangs below the first line when more lines follow at that edge; else it is a new first
        // line.
        if (step > m_parameters.maximumFirstLine * m_lines[next].fontSize)
            return true;
        const bool hangsOn = next + 1 < m_lines.size() && sameEdge(m_measures[next + 1].startGap, line.startGap, next);
        return !hangsOn && !sameEdge(step, m_lastHang, next);
    }

    bool wouldFitAbove(std::size_t next) const {
        const LineMeasure& before = m_measures[next - 1];
        const LineMeasure& line = m_measures[next];
        if (before.endsWithHyphen && line.startsLowerCase)
            return false;
        if (hangsInItem(next) && before.endGap < before.width && sentenceGoesOn(before, line))
            return false;
        double free = before.endGap;
        switch (pairAlignment(next)) {
        case PairAlignment::Start:
            break;
        case PairAlignment::Center:
            free = before.startGap + before.endGap;
            // About a middle of its own the nearer edge of the column ends the room.
            if (const double shift = std::abs(before.startGap - before.endGap); shift > 2 * tolerance(next))
                free -= shift;
            break;
        case PairAlignment::End:
            free = before.startGap;
            break;
        }
        return wouldHaveFitted(before, line, free, m_slack * m_lines[next].fontSize);
    }

    /// Below a label's text: text boxes end before their column does, but an item goes on until the next label.
    bool hangsInItem(std::size_t next) const {
        const LineMeasure& first = m_measures[m_first];
        return first.marker && first.textStart > first.startGap &&
               sameEdge(m_measures[next].startGap, first.textStart, next);
    }

    /// In justified text only a paragraph's last line ends before the edge.
    bool followsShortLine(std::size_t next) const {
        const LineMeasure& above = m_measures[next - 1];
        const double flush = m_parameters.flushTolerance * m_lines[next].fontSize;
        if (above.endGap <= 2 * flush || above.meanGap > m_parameters.stretchedGap * above.blank ||
            sentenceRunsOn(next))
            return false;
        if (static_cast<int>(next - 1 - m_first) < m_parameters.flushLines)
            return m_justified.isJustified(above.startGap, m_lines[next - 1].fontSize);
        for (std::size_t i = m_first; i + 1 < next; ++i)
            if (std::abs(m_measures[i].endGap) > flush)
                return false;
        return true;
    }

    double bodyStart(std::size_t next) const {
        return next - m_first >= 2 ? m_measures[next - 1].startGap : m_measures[m_first].textStart;
    }
    PairAlignment pairAlignment(std::size_t next) const {
        const PairAlignment alignment =
            alignmentOfPair(m_measures[next - 1], m_measures[next], m_lines[next].fontSize, m_parameters);
        // A full line with its first line's indent, and the line below it: the third line shows that their starts
        // count.
        const bool startsCount =
            next + 1 < m_lines.size() && sameEdge(m_measures[next].startGap, m_measures[next + 1].startGap, next);
        const bool isAtEdge = sameEdge(m_measures[next].startGap, 0, next);
        const bool mayStart = alignment == PairAlignment::End || (alignment == PairAlignment::Center && isAtEdge);
        return mayStart && startsCount ? PairAlignment::Start : alignment;
    }
    double distanceAbove(std::size_t next) const { return m_lines[next].baseline - m_lines[next - 1].baseline; }
    double tolerance(std::size_t next) const { return m_parameters.edgeTolerance * m_lines[next].fontSize; }
    bool sameEdge(double a, double b, std::size_t next) const { return std::abs(a - b) <= tolerance(next); }

    std::span<const Line> m_lines;
    std::span<const LineMeasure> m_measures;
    const ParagraphParameters::Paragraphs& m_parameters;
    NaturalLeading m_leading;
    JustifiedLines m_justified;
    double m_slack; ///< of the font size; what a word must leave free to have "fitted"
    std::size_t m_first = 0;
    double m_lastHang = 0; ///< how far the lines of the last paragraph with several stand behind its first
};

} // namespace

PairAlignment alignmentOfPair(const LineMeasure& before, const LineMeasure& next, double fontSize,
                              const ParagraphParameters::Paragraphs& parameters) {
    const double tolerance = parameters.edgeTolerance * fontSize;
    const double indent = parameters.minimumCenterIndent * fontSize;
    if (std::abs(before.startGap - next.startGap) <= tolerance)
        return PairAlignment::Start;
    const auto isCentered = [&](const LineMeasure& line) {
        return std::abs(line.startGap - line.endGap) <= 2 * tolerance;
    };
    if (isCentered(before) && isCentered(next))
        return PairAlignment::Center;
    // Where text boxes and tables are narrower than the column, lines are centred about another middle.
    const double shift = (before.startGap - before.endGap) - (next.startGap - next.endGap);
    if (std::abs(shift) <= tolerance && std::abs(before.startGap - next.startGap) > 2 * indent &&
        before.startGap > tolerance && next.startGap > tolerance)
        return PairAlignment::Center;
    const auto isAtEnd = [&](const LineMeasure& line) {
        return std::abs(line.endGap) <= tolerance &&
               line.startGap > std::max(indent, parameters.endAligned * line.width);
    };
    if (isAtEnd(before) && isAtEnd(next))
        return PairAlignment::End;
    return PairAlignment::Start;
}

std::vector<BreakReason> findBreaks(std::span<const Line> lines, std::span<const LineMeasure> measures,
                                    const ParagraphContext& context, const ParagraphParameters& parameters) {
    return BreakFinder(lines, measures, context, parameters.paragraphs).run();
}

} // namespace orvane::layout
