#include "layout/structure/ParagraphContinuation.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

using document::Alignment;

LineMeasure measureOne(const Line& line, ColumnSpan column, const ParagraphContext& context,
                       const LayoutParameters& parameters) {
    return measureLines({&line, 1}, column, context, parameters).front();
}

bool isOneParagraphsLook(const ParagraphDraft& a, const ParagraphDraft& b,
                         const ParagraphParameters::Paragraphs& parameters) {
    const Line& before = a.lines.back();
    const Line& next = b.lines.front();
    return before.angle == next.angle && before.isVertical == next.isVertical &&
           before.isRightToLeft == next.isRightToLeft &&
           std::max(before.fontSize, next.fontSize) <= parameters.sizeChange * std::min(before.fontSize, next.fontSize);
}

/// Whether the paragraph is a single line of numbers and signs: that of a page or a formula, which no text goes on
/// from.
bool isBareNumber(const ParagraphDraft& paragraph) {
    if (paragraph.lines.size() > 1)
        return false;
    const std::u32string text = utf32FromUtf8(textOf(paragraph.lines.front()));
    // A date may break at a hyphen.
    return std::none_of(text.begin(), text.end(), isLetter) && !text.ends_with(U'-');
}

} // namespace

bool mayRunOn(const PlacedParagraph& last, const ParagraphContext& context, const LayoutParameters& parameters) {
    const Line& line = last.paragraph.lines.back();
    if (line.words.empty() || last.paragraph.alignment == Alignment::Center ||
        last.paragraph.alignment == Alignment::End || isBareNumber(last.paragraph))
        return false;
    const LineMeasure measure = measureOne(line, last.column, context, parameters);
    if (measure.hasLeader)
        return false;
    const double full = last.paragraph.alignment == Alignment::Justified ? 2 * parameters.paragraphs.flushTolerance
                                                                         : parameters.paragraphs.fullLine;
    return measure.endGap - last.paragraph.indentEnd <= full * line.fontSize;
}

bool runsOn(const PlacedParagraph& last, const PlacedParagraph& next, const ParagraphContext& context,
            const LayoutParameters& parameters) {
    const ParagraphParameters::Paragraphs& limits = parameters.paragraphs;
    const Line& line = last.paragraph.lines.back();
    const Line& start = next.paragraph.lines.front();
    if (line.words.empty() || start.words.empty() || isBareNumber(last.paragraph) ||
        !isOneParagraphsLook(last.paragraph, next.paragraph, limits))
        return false;
    const LineMeasure before = measureOne(line, last.column, context, parameters);
    const LineMeasure after = measureOne(start, next.column, context, parameters);
    if (before.hasLeader || after.marker || before.isBold != after.isBold)
        return false;
    const double size = start.fontSize;
    if (wouldHaveFitted(before, after, before.endGap - last.paragraph.indentEnd, limits.fitSlack * size))
        return false;
    const bool startsIndented = after.startGap > last.paragraph.indentStart + limits.edgeTolerance * size;
    if (startsIndented && last.paragraph.alignment != Alignment::Center)
        return false;
    // Centred lines are names, addresses and titles as often as text.
    if (last.paragraph.alignment == Alignment::Center && !sentenceGoesOn(before, after) && !before.endsWithHyphen)
        return false;
    // A sentence that has not come to its end does not end its paragraph. A full last line of a finished sentence
    // before a capital may be either; without a sign of going on it is an end.
    return after.startsLowerCase || before.endsWithHyphen || !before.endsSentence ||
           (last.paragraph.alignment == Alignment::Justified && before.meanGap > limits.stretchedGap * before.blank);
}

} // namespace orvane::layout
