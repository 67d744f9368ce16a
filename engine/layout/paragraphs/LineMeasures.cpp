#include "layout/paragraphs/LineMeasures.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <string_view>

namespace orvane::layout {
namespace {

/// The part of the column that floating things leave to the line.
ColumnSpan roomOf(const Line& line, ColumnSpan column, std::span<const Rect> obstacles) {
    for (const Rect& obstacle : obstacles) {
        if (overlap(obstacle.top, obstacle.bottom, line.box.top, line.box.bottom) <= 0)
            continue;
        if (obstacle.right <= line.box.centerX())
            column.left = std::max(column.left, std::min(obstacle.right, line.box.left));
        else if (obstacle.left >= line.box.centerX())
            column.right = std::min(column.right, std::max(obstacle.left, line.box.right));
    }
    return column;
}

double naturalBlank(const Span& span, std::span<const pdf::Font> fonts) {
    const double em = span.look.font < fonts.size() ? fonts[span.look.font].spaceWidth : pdf::Font{}.spaceWidth;
    return em * span.look.size * span.look.horizontalScale + std::max(0.0, span.look.characterSpacing);
}

bool isBreakingHyphen(char32_t character) {
    return character == U'-' || character == U'\u00AD' || character == U'\u2010' || character == U'\u2013' ||
           character == U'\u2014';
}

/// Closing brackets, full stops and the like, which may not start a line. Source: UAX #14, classes CL, CP, EX, NS, IS.
bool clingsToWordBefore(char32_t character) {
    switch (u_getIntPropertyValue(static_cast<UChar32>(character), UCHAR_LINE_BREAK)) {
    case U_LB_CLOSE_PUNCTUATION:
    case U_LB_CLOSE_PARENTHESIS:
    case U_LB_EXCLAMATION:
    case U_LB_NONSTARTER:
    case U_LB_INFIX_NUMERIC:
    case U_LB_CONDITIONAL_JAPANESE_STARTER:
        return true;
    default:
        return false;
    }
}

/// A letter of a script without capitals: Hebrew, Arabic, Han, Hangul, Thai.
bool isCaselessLetter(char32_t character) {
    const auto type = u_charType(static_cast<UChar32>(character));
    return type == U_OTHER_LETTER || type == U_MODIFIER_LETTER;
}

/// Whether the text is a name in brackets or between slashes, as behind a line to sign on.
bool isNameOfSigner(std::u32string_view text) {
    return text.size() > 1 &&
           ((text.front() == U'(' && text.back() == U')') || (text.front() == U'/' && text.back() == U'/'));
}

/// A line of strokes or dots, to write on or to part what stands above from what stands below. Behind strokes to sign
/// on the name may follow.
bool isFillerLine(const Line& line) {
    constexpr std::ptrdiff_t kShortest = 5;
    const std::u32string text = utf32FromUtf8(textOf(line));
    const std::u32string_view strokes = std::u32string_view(text).substr(0, text.find_first_not_of(U"_.…-–—=*·~ \t"));
    const auto blanks =
        std::count_if(strokes.begin(), strokes.end(), [](char32_t c) { return c == U' ' || c == U'\t'; });
    if (std::ssize(strokes) - blanks < kShortest)
        return false;
    const std::u32string_view behind = std::u32string_view(text).substr(strokes.size());
    return behind.empty() || (text.starts_with(U"____") && isNameOfSigner(behind));
}

/// Whether the line ends in strokes to write on.
bool endsInField(const std::u32string& lastWord) {
    constexpr std::size_t kShortest = 4;
    const std::size_t end = lastWord.find_last_not_of(U'_');
    return lastWord.size() - (end == std::u32string::npos ? 0 : end + 1) >= kShortest;
}

/// How many characters of the word have to move together to the line above.
std::size_t firstUnitLength(const std::u32string& word) {
    std::size_t length = 1;
    if (isWithoutBlanks(word[0])) {
        while (length < word.size() && clingsToWordBefore(word[length]))
            ++length;
        return length;
    }
    while (length < word.size() && !isWithoutBlanks(word[length])) {
        const bool mayBreak =
            isBreakingHyphen(word[length - 1]) && length > 1 && u_isalpha(static_cast<UChar32>(word[length]));
        if (mayBreak)
            break;
        ++length;
    }
    return length;
}

/// The mean width of the blanks behind word `first`.
double meanGap(const Line& line, std::size_t first) {
    double total = 0;
    int count = 0;
    for (std::size_t i = first + 1; i < line.words.size(); ++i) {
        if (line.words[i].gapBefore != Gap::Space)
            continue;
        const Rect& a = line.words[i - 1].box;
        const Rect& b = line.words[i].box;
        total += std::max(b.left - a.right, a.left - b.right) / line.words[i].blanksBefore;
        ++count;
    }
    return count > 0 ? total / count : 0;
}

void readWords(const Line& line, LineMeasure& measure) {
    measure.isBold = true;
    measure.isFiller = isFillerLine(line);
    measure.smallestSize = measure.largestSize = line.fontSize;
    measure.startsBold = line.words.front().spans.front().look.isBold;
    measure.endsBold = line.words.back().spans.back().look.isBold;
    for (const Word& word : line.words) {
        const double wordStart =
            measure.startGap + (line.isRightToLeft ? line.box.right - word.box.right : word.box.left - line.box.left);
        for (const Span& span : word.spans) {
            if (measure.field < 0 && span.look.field >= 0) {
                measure.field = span.look.field;
                measure.fieldStart = wordStart;
            }
            measure.isBold = measure.isBold && span.look.isBold;
            measure.smallestSize = std::min(measure.smallestSize, span.look.size);
            measure.largestSize = std::max(measure.largestSize, span.look.size);
        }
        measure.hasLeader = measure.hasLeader || word.leaderBefore != document::TabLeader::None;
        if (word.gapBefore == Gap::Tab && &word != &line.words.front())
            measure.tabStart = wordStart;
    }
}

void readEnds(const Line& line, std::span<const pdf::Font> fonts, LineMeasure& measure) {
    const std::u32string first = utf32FromUtf8(textOf(line.words.front()));
    const std::u32string last = utf32FromUtf8(textOf(line.words.back()));
    if (first.empty() || last.empty())
        return;
    measure.blank = naturalBlank(line.words.back().spans.back(), fonts);
    measure.firstUnit = line.words.front().box.width() * static_cast<double>(firstUnitLength(first)) /
                        static_cast<double>(first.size());
    measure.endsWithHyphen = isBreakingHyphen(last.back()) && last.size() > 1;
    measure.endsWithoutBlanks = isWithoutBlanks(last.back());
    measure.startsWithoutBlanks = isWithoutBlanks(first[0]);
    measure.endsInHan = measure.endsWithoutBlanks && u_isalpha(static_cast<UChar32>(last.back()));
    measure.startsInHan = measure.startsWithoutBlanks && u_isalpha(static_cast<UChar32>(first[0]));
    measure.endsCaseless = isCaselessLetter(last.back());
    measure.startsCaseless = isCaselessLetter(first[0]);
    measure.endsSentence = endsSentence(last);
    measure.endsInField = endsInField(last);
    measure.startsLowerCase = u_islower(static_cast<UChar32>(first[0]));
}

LineMeasure measure(const Line& line, ColumnSpan column, const ParagraphContext& context,
                    const ParagraphParameters& parameters) {
    LineMeasure result;
    const ColumnSpan room = roomOf(line, column, context.obstacles);
    const double left = line.box.left - room.left;
    const double right = room.right - line.box.right;
    result.startGap = line.isRightToLeft ? right : left;
    result.endGap = line.isRightToLeft ? left : right;
    result.width = line.box.width();
    result.textStart = result.startGap;
    if (line.words.empty())
        return result;
    readWords(line, result);
    readEnds(line, context.fonts, result);
    result.marker = findListMarker(line, parameters.markers);
    // How far an item's text stands from its label tells nothing about blanks.
    result.meanGap = meanGap(line, result.marker && result.marker->isWholeWord ? 1 : 0);
    if (result.marker && line.words.size() > 1) {
        const Rect& text = line.words[1].box;
        result.textStart =
            result.startGap + (line.isRightToLeft ? line.box.right - text.right : text.left - line.box.left);
    }
    return result;
}

} // namespace

std::vector<LineMeasure> measureLines(std::span<const Line> lines, ColumnSpan column, const ParagraphContext& context,
                                      const ParagraphParameters& parameters) {
    std::vector<LineMeasure> measures;
    measures.reserve(lines.size());
    for (const Line& line : lines)
        measures.push_back(measure(line, column, context, parameters));
    return measures;
}

bool wouldHaveFitted(const LineMeasure& before, const LineMeasure& next, double free, double slack) {
    const bool needsNoBlank = before.endsWithoutBlanks && next.startsWithoutBlanks;
    return (needsNoBlank ? 0 : before.blank) + next.firstUnit <= free - slack;
}

bool sentenceGoesOn(const LineMeasure& before, const LineMeasure& next) {
    return next.startsLowerCase || (before.endsCaseless && next.startsCaseless);
}

} // namespace orvane::layout
