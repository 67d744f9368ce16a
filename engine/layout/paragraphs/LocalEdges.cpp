#include "layout/paragraphs/LocalEdges.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <string_view>

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

/// Whether the line is in letters of one width. East Asian ones are so in most fonts.
bool isTyped(const Line& line, std::span<const pdf::Font> fonts) {
    if (line.words.empty())
        return false;
    const std::uint32_t font = line.words.front().spans.front().look.font;
    if (font >= fonts.size() || !fonts[font].isFixedPitch)
        return false;
    return std::none_of(line.words.begin(), line.words.end(), [](const Word& word) {
        const std::u32string text = utf32FromUtf8(textOf(word));
        return std::any_of(text.begin(), text.end(), isWithoutBlanks);
    });
}

/// The share of the lines that are in letters of one width.
double typedShare(std::span<const Line> lines, std::span<const pdf::Font> fonts) {
    const auto typed =
        std::count_if(lines.begin(), lines.end(), [fonts](const Line& line) { return isTyped(line, fonts); });
    return static_cast<double>(typed) / static_cast<double>(lines.size());
}

/// Several lines end at the edge exactly, their blanks spread to reach it, or (without blanks) more than chance allows:
/// of a typewriter's all with as many letters do. A single wide blank may as well part a name from its value.
bool isSpreadTo(double edge, std::span<const Line> lines, std::span<const LineMeasure> block, double flush,
                const ParagraphContext& context, const ParagraphParameters::Paragraphs& parameters) {
    int spread = 0;
    int flushLines = 0;
    for (std::size_t i = 0; i < block.size(); ++i) {
        const LineMeasure& line = block[i];
        if (line.endGap - edge > flush)
            continue;
        flushLines += isTyped(lines[i], context.fonts) ? 0 : 1;
        spread += lines[i].words.size() > 2 && line.meanGap > parameters.stretchedGap * line.blank ? 1 : 0;
    }
    return spread >= parameters.flushLines || flushLines > parameters.flushLines + 1;
}

/// What lines of programs end with: the next one begins in lower case, but is no more of a sentence.
bool endsStatement(const Line& line) {
    constexpr std::u32string_view kEnds = U";{}";
    const std::u32string text = utf32FromUtf8(textOf(line.words.back()));
    return !text.empty() && kEnds.find(text.back()) != std::u32string_view::npos;
}

/// How many lines are full, and how many go on, when measured against another edge.
struct ProseCount {
    int pairs = 0;
    int full = 0;
    int goingOn = 0;
    int statements = 0; ///< among those

    void add(const Line& line, const LineMeasure& before, const LineMeasure& next, double edge, double slack) {
        ++pairs;
        if (wouldHaveFitted(before, next, before.endGap - edge, slack))
            return;
        ++full;
        // Single words below each other are as often a list.
        const bool isText = line.words.size() > 1 || before.endsInHan;
        if (!isText || !sentenceGoesOn(before, next))
            return;
        ++goingOn;
        statements += endsStatement(line) ? 1 : 0;
    }
    /// Most lines are full, and the sentences of most of those go on; it is no program.
    bool isProse(const ParagraphParameters::Paragraphs& parameters) const {
        return goingOn >= parameters.flushLines && goingOn >= parameters.proseShare * full &&
               full >= parameters.proseShare * pairs && 2 * statements <= goingOn;
    }
};

bool isProseTo(double edge, std::span<const Line> lines, std::span<const LineMeasure> block, double slack,
               const ParagraphParameters::Paragraphs& parameters) {
    ProseCount count;
    for (std::size_t i = 0; i + 1 < block.size(); ++i)
        count.add(lines[i], block[i], block[i + 1], edge, slack);
    return count.isProse(parameters);
}

double nearestEnd(std::span<const LineMeasure> lines) {
    double edge = lines[0].endGap;
    for (const LineMeasure& line : lines)
        edge = std::min(edge, line.endGap);
    return edge;
}

/// How much farther out than the edge the lines might have been set to end: up to the column's edge, but no line that
/// is full, measured against their own, would have had room for another word.
double playBehind(std::span<const LineMeasure> lines, double edge, double slack) {
    double play = edge;
    for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
        const double free = lines[i].endGap - edge;
        if (wouldHaveFitted(lines[i], lines[i + 1], free, slack))
            continue;
        play = std::min(play, lines[i].blank + lines[i + 1].firstUnit - free);
    }
    return std::max(0.0, play);
}

void setEdge(std::span<LineMeasure> lines, double edge, double slack) {
    const double play = playBehind(lines, edge, slack);
    for (LineMeasure& line : lines) {
        line.endGap -= edge;
        line.endInset += edge;
        line.endPlay = play;
    }
}

/// Paragraphs of one indent that follow each other, with space between them, share their edge: alone each may be too
/// short to show it. Asked only of scripts without capitals, as elsewhere code and verse go on in lower case too.
void applyCommonEdges(std::span<const Line> lines, std::span<LineMeasure> measures, const ParagraphContext& context,
                      const ParagraphParameters::Paragraphs& parameters) {
    for (std::size_t first = 0, end = 0; first < lines.size(); first = end) {
        const double size = lines[first].fontSize;
        const auto belongs = [&](std::size_t i) {
            return std::abs(measures[i].startGap - measures[first].startGap) <= parameters.edgeTolerance * size &&
                   lines[i].angle == lines[first].angle &&
                   std::max(lines[i].fontSize, size) <= parameters.sizeChange * std::min(lines[i].fontSize, size);
        };
        end = first + 1;
        while (end < lines.size() && belongs(end))
            ++end;
        const auto stretch = measures.subspan(first, end - first);
        const double edge = nearestEnd(stretch);
        if (edge <= parameters.ownEdge * size || measures[first].startGap <= parameters.ownEdge * size)
            continue;
        ProseCount count;
        for (std::size_t i = first + 1; i < end; ++i)
            if (isSameBlock(lines, measures, i - 1, i, context, parameters) && measures[i - 1].endsCaseless)
                count.add(lines[i - 1], measures[i - 1], measures[i], edge, parameters.fitSlack * size);
        if (count.isProse(parameters))
            setEdge(stretch, edge, parameters.fitSlack * size);
    }
}

} // namespace

void applyLocalEdges(std::span<const Line> lines, std::span<LineMeasure> measures, const ParagraphContext& context,
                     const ParagraphParameters::Paragraphs& parameters) {
    // A typewriter's lines among others are a program or what one prints, which go on in lower case, too.
    const bool isTypescript = typedShare(lines, context.fonts) > parameters.typescriptShare;
    const auto mayBeProgram = [&](std::span<const Line> block) {
        return !isTypescript && 2 * typedShare(block, context.fonts) > 1;
    };
    for (std::size_t first = 0; first < lines.size();) {
        std::size_t end = first + 1;
        while (end < lines.size() && isSameBlock(lines, measures, first, end, context, parameters))
            ++end;
        const auto block = measures.subspan(first, end - first);
        const double size = lines[first].fontSize;
        const double edge = nearestEnd(block);
        const bool isOwnEdge =
            block.size() > 1 && edge > parameters.ownEdge * size &&
            (isSpreadTo(edge, lines.subspan(first), block, parameters.flushTolerance * size, context, parameters) ||
             (!mayBeProgram(lines.subspan(first, end - first)) &&
              isProseTo(edge, lines.subspan(first), block, parameters.fitSlack * size, parameters)));
        if (isOwnEdge)
            setEdge(block, edge, parameters.fitSlack * size);
        first = end;
    }
    applyCommonEdges(lines, measures, context, parameters);
}

} // namespace orvane::layout
