#include "layout/frames/FrameCutter.h"

#include "layout/text/Line.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

using document::Alignment;

bool isFlat(const Line& line) {
    return line.angle == 0 && !line.isVertical;
}

double startOf(const Rect& box, bool isRightToLeft) {
    return isRightToLeft ? box.right : box.left;
}

/// Cuts lines of one paragraph where text behind a tabulator has a place of its own.
class TabCutter {
public:
    TabCutter(const std::vector<Line>& lines, const FrameParameters::TextBoxes& parameters)
        : m_parameters(parameters) {
        for (const Line& line : lines)
            m_starts.push_back(startOf(line.box, line.isRightToLeft));
    }

    /// The parts of the line. Wide blanks of justified text, and gaps that a leader fills, stay within a part.
    std::vector<Line> cut(Line line) const {
        std::vector<Line> parts;
        for (std::size_t i = 1; isFlat(line) && i < line.words.size(); ++i) {
            if (overlaps(line, i)) {
                Line rest = splitLine(line, i);
                parts.push_back(std::exchange(line, std::move(rest)));
                i = 0;
                continue;
            }
            if (isStretched(line, i))
                line.words[i].gapBefore = Gap::Tab;
            if (line.words[i].gapBefore != Gap::Tab || line.words[i].leaderBefore != document::TabLeader::None)
                continue;
            if (!hasOwnPlace(line, i)) {
                line.words[i].gapBefore = Gap::Space;
                continue;
            }
            Line rest = splitLine(line, i);
            parts.push_back(std::exchange(line, std::move(rest)));
            i = 0;
        }
        parts.push_back(std::move(line));
        return parts;
    }

private:
    /// True when the word starts before the one in front of it ends: no blank can bring it there.
    bool overlaps(const Line& line, std::size_t word) const {
        const Word& before = line.words[word - 1];
        const Word& behind = line.words[word];
        return !line.isRightToLeft && !before.isRightToLeft && !behind.isRightToLeft &&
               behind.box.left < before.box.right - m_parameters.overlap * line.fontSize;
    }

    /// True of a blank in a line by itself that is wider than any: numbers spread evenly along an axis look like words
    /// of a line that was justified.
    bool isStretched(const Line& line, std::size_t word) const {
        return m_starts.size() == 1 && line.words[word].gapBefore == Gap::Space &&
               gapBefore(line, word) >= m_parameters.widestBlank * line.fontSize;
    }

    static double gapBefore(const Line& line, std::size_t word) {
        const Rect& before = line.words[word - 1].box;
        const Rect& behind = line.words[word].box;
        return std::max(behind.left - before.right, before.left - behind.right);
    }

    /// True behind a wide gap, on a line of its own, and where another line starts: below a label the text hangs.
    bool hasOwnPlace(const Line& line, std::size_t word) const {
        const double start = startOf(line.words[word].box, line.isRightToLeft);
        return m_starts.size() == 1 || gapBefore(line, word) >= m_parameters.widestBlank * line.fontSize ||
               std::any_of(m_starts.begin(), m_starts.end(),
                           [&](double other) { return std::abs(other - start) <= m_parameters.edgeTolerance; });
    }

    const FrameParameters::TextBoxes& m_parameters;
    std::vector<double> m_starts;
};

/// Lines one below the other that one paragraph can hold, and what it would have to be like.
class LineGroup {
public:
    LineGroup(Line line, const FrameParameters::TextBoxes& parameters)
        : m_parameters(parameters) {
        m_isOpen = isFlat(line);
        m_lines.push_back(std::move(line));
    }

    /// Takes the line if it stands below the others at their pitch, and starts, ends or has its middle where they do.
    bool take(Line& line) {
        if (!m_isOpen || !isFlat(line) || line.isRightToLeft != m_lines.front().isRightToLeft)
            return false;
        const double step = line.baseline - m_lines.back().baseline;
        if (step < m_parameters.lowestPitch * line.fontSize || step > m_parameters.highestPitch * line.fontSize)
            return false;
        if (m_lines.size() > 1 && std::abs(step - m_pitch) > m_parameters.pitchTolerance)
            return false;
        const Sides sides = sidesWith(line);
        if (!sides.startsAlike && !sides.endsAlike && !sides.centersAlike)
            return false;
        m_sides = sides;
        if (m_lines.size() == 1)
            m_pitch = step;
        m_lines.push_back(std::move(line));
        return true;
    }

    ParagraphDraft finish() {
        ParagraphDraft paragraph;
        for (const Line& line : m_lines)
            paragraph.box = paragraph.box.united(line.box);
        paragraph.alignment = alignment();
        if (paragraph.alignment == Alignment::Start || paragraph.alignment == Alignment::Justified) {
            const Line& second = m_lines[m_lines.size() > 1 ? 1 : 0];
            paragraph.indentStart = inset(second, paragraph.box);
            paragraph.firstLine = inset(m_lines.front(), paragraph.box) - paragraph.indentStart;
        }
        paragraph.leading = m_lines.size() > 1 ? m_pitch : 0;
        for (std::size_t i = 0; i + 1 < m_lines.size(); ++i)
            paragraph.hardBreaks.push_back(i);
        paragraph.lines = std::move(m_lines);
        return paragraph;
    }

private:
    /// Which sides of the lines stand one below the other. Start and end are those of the writing.
    struct Sides {
        bool startsAlike = true; ///< those of the lines after the first
        bool endsAlike = true;
        bool centersAlike = true;
    };

    static double startOf(const Line& line) { return layout::startOf(line.box, line.isRightToLeft); }
    static double endOf(const Line& line) { return line.isRightToLeft ? line.box.left : line.box.right; }
    static double inset(const Line& line, const Rect& box) {
        return line.isRightToLeft ? box.right - line.box.right : line.box.left - box.left;
    }

    bool isSame(double a, double b) const { return std::abs(a - b) <= m_parameters.edgeTolerance; }

    Sides sidesWith(const Line& line) const {
        const Line& last = m_lines.back();
        Sides sides;
        // A first line may be indented or hang, by as much as authors do that.
        const double step = std::abs(startOf(line) - startOf(last));
        sides.startsAlike = m_lines.size() == 1 ? step <= m_parameters.largestFirstLine * line.fontSize
                                                : m_sides.startsAlike && isSame(startOf(line), startOf(last));
        sides.endsAlike = m_sides.endsAlike && isSame(endOf(line), endOf(m_lines.front()));
        sides.centersAlike = m_sides.centersAlike && isSame(line.box.centerX(), m_lines.front().box.centerX());
        return sides;
    }

    Alignment alignment() const {
        if (m_lines.size() == 1)
            return Alignment::Start;
        // Two lines that start alike may do so by chance; a third tells.
        if (m_lines.size() > 2 && m_sides.startsAlike)
            return isFlush() ? Alignment::Justified : Alignment::Start;
        if (isSame(startOf(m_lines[0]), startOf(m_lines[1])))
            return Alignment::Start;
        if (m_sides.centersAlike)
            return Alignment::Center;
        return m_sides.endsAlike ? Alignment::End : Alignment::Start;
    }

    /// True when all lines but the last end at one edge, most of them exactly: typesetters let hyphens and full stops
    /// stand out over it.
    bool isFlush() const {
        if (m_lines.size() < m_parameters.fewestFlushLines)
            return false;
        std::vector<double> ends;
        for (const Line& line : m_lines)
            ends.push_back(endOf(line));
        ends.pop_back();
        const auto middle = ends.begin() + static_cast<std::ptrdiff_t>(ends.size() / 2);
        std::nth_element(ends.begin(), middle, ends.end());
        const double edge = *middle;
        const double farthest = m_parameters.protrusion * m_lines.front().fontSize;
        const auto exact = std::count_if(ends.begin(), ends.end(), [&](double end) { return isSame(end, edge); });
        return 2 * static_cast<std::size_t>(exact) >= ends.size() &&
               std::all_of(ends.begin(), ends.end(), [&](double end) { return std::abs(end - edge) <= farthest; });
    }

    const FrameParameters::TextBoxes& m_parameters;
    std::vector<Line> m_lines;
    Sides m_sides;
    double m_pitch = 0;
    bool m_isOpen = true;
};

/// Groups the lines of one paragraph, the newest group first: a label before a tabulator stays alone.
std::vector<ParagraphDraft> cutParagraph(ParagraphDraft paragraph, const FrameParameters::TextBoxes& parameters) {
    const TabCutter cutter(paragraph.lines, parameters);
    std::vector<LineGroup> groups;
    for (Line& line : paragraph.lines)
        for (Line& part : cutter.cut(std::move(line))) {
            const auto taker =
                std::find_if(groups.rbegin(), groups.rend(), [&](LineGroup& group) { return group.take(part); });
            if (taker == groups.rend())
                groups.emplace_back(std::move(part), parameters);
        }
    std::vector<ParagraphDraft> cut;
    cut.reserve(groups.size());
    for (LineGroup& group : groups)
        cut.push_back(group.finish());
    return cut;
}

void addFrames(std::vector<DraftBlock> blocks, const FrameParameters::TextBoxes& parameters,
               std::vector<DraftBlock>& frames) {
    for (DraftBlock& block : blocks) {
        if (auto* table = std::get_if<DraftTable>(&block.value)) {
            for (DraftCell& cell : table->cells)
                addFrames(std::move(cell.blocks), parameters, frames);
        } else if (DraftParagraph* whole = block.paragraph()) {
            for (DraftPiece& piece : whole->pieces)
                for (ParagraphDraft& part : cutParagraph(std::move(piece.text), parameters)) {
                    DraftBlock& frame = frames.emplace_back();
                    frame.page = piece.page;
                    frame.box = part.box;
                    const ColumnSpan column{part.box.left, part.box.right};
                    DraftParagraph paragraph;
                    paragraph.pieces.push_back({piece.page, 0, 0, column, std::move(part)});
                    frame.value = std::move(paragraph);
                }
        }
        addFrames(std::move(block.labels), parameters, frames);
    }
}

} // namespace

std::vector<DraftBlock> cutIntoFrames(std::vector<DraftBlock> blocks, const FrameParameters::TextBoxes& parameters) {
    std::vector<DraftBlock> frames;
    addFrames(std::move(blocks), parameters, frames);
    return frames;
}

} // namespace orvane::layout
