#include "layout/fonts/LineMetrics.h"

#include "base/Units.h"
#include "base/Utf8.h"
#include "layout/formulas/FormulaFinder.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

namespace orvane::layout {
namespace {

using document::LineSpacing;
using document::LineSpacingRule;

/// The size that the document gives the letters: word processors know half points only. Units: points.
double writtenSize(const Look& look) {
    return halfPointsFromPoints(look.size).value / 2.0;
}

/// The usual distance between lines, and the height in single spacing of the lines that these distances lead to.
struct Pitch {
    double distance = 0;
    double natural = 0;
    bool isKnown = false;
    std::size_t count = 0; ///< of such distances
};

/// The distance in the middle, and the mean of all that are the same where places are told coarsely.
Pitch usualPitch(std::vector<std::pair<double, double>> steps, double coarsePlace) {
    constexpr double kRounding = 1.5; // of a coarse step, that of two places taken together
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::nth_element(steps.begin(), middle, steps.end());
    Pitch pitch{0, middle->second, false, 0};
    const double distance = middle->first;
    for (const auto& [step, natural] : steps)
        if (std::abs(step - distance) <= kRounding * coarsePlace && natural == pitch.natural) {
            pitch.distance += step;
            ++pitch.count;
        }
    pitch.distance /= static_cast<double>(pitch.count);
    return pitch;
}

Pitch pitchOf(const DraftParagraph& paragraph, const FontCatalog& fonts, double coarsePlace) {
    std::vector<std::pair<double, double>> steps; // distance, natural height
    bool isKnown = true;
    for (const DraftPiece& piece : paragraph.pieces) {
        const std::vector<Line>& lines = piece.text.lines;
        for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
            // In single spacing the next baseline is one descent and one ascent away.
            const LineExtent upper = extentOf(lines[i], piece.page, fonts);
            const LineExtent lower = extentOf(lines[i + 1], piece.page, fonts);
            isKnown = isKnown && upper.isKnown && lower.isKnown;
            steps.emplace_back(lines[i + 1].baseline - lines[i].baseline, upper.descent + lower.ascent);
        }
    }
    if (steps.empty())
        return {};
    Pitch pitch = usualPitch(std::move(steps), coarsePlace);
    pitch.isKnown = isKnown;
    return pitch;
}

bool hasFormula(const DraftParagraph& paragraph) {
    for (const DraftPiece& piece : paragraph.pieces)
        for (const Line& line : piece.text.lines)
            for (const Word& word : line.words)
                if (std::any_of(word.spans.begin(), word.spans.end(),
                                [](const Span& span) { return span.look.formula >= 0; }))
                    return true;
    return false;
}

/// Whether most characters are of a script whose lines word processors set on the page's grid.
bool isEastAsian(const DraftParagraph& paragraph) {
    std::ptrdiff_t eastAsian = 0, all = 0;
    for (const Word& word : paragraph.firstLine().words) {
        const std::u32string text = utf32FromUtf8(textOf(word));
        eastAsian += std::count_if(text.begin(), text.end(), isSetWithoutBlanks);
        all += static_cast<std::ptrdiff_t>(text.size());
    }
    return 2 * eastAsian > all;
}

/// An exact height as people type it.
LineSpacing exactSpacing(double height, const AssemblyParameters::Spacing& limits) {
    const double round = std::round(2 * height) / 2;
    const bool isRound = std::abs(round - height) <= limits.roundHeight;
    return {LineSpacingRule::Exact, 1.0, twipsFromPoints(isRound ? round : height)};
}

/// The multiple that people choose from menus and dialogs with which lines come out that far apart, give or take the
/// tolerance in points; nullopt for none.
std::optional<double> chosenMultiple(const Pitch& pitch, double tolerance) {
    static constexpr std::array kUsual = {1.0, 1.05, 1.08, 1.1,  1.15, 1.2, 1.25, 1.3, 1.35,
                                          1.4, 1.5,  1.6,  1.75, 1.8,  2.0, 2.25, 2.5, 3.0};
    const auto distanceTo = [&pitch](double multiple) { return std::abs(multiple * pitch.natural - pitch.distance); };
    const auto nearest = std::min_element(kUsual.begin(), kUsual.end(),
                                          [&](double a, double b) { return distanceTo(a) < distanceTo(b); });
    return distanceTo(*nearest) <= tolerance ? std::optional(*nearest) : std::nullopt;
}

/// The multiple in steps that all word processors keep: they write it in 240ths, and some cut these to hundredths.
double wholeHundredths(double multiple) {
    return std::ceil(2.4 * std::round(100 * multiple)) / 240;
}

} // namespace

LineExtent extentOf(const Line& line, std::size_t page, const FontCatalog& fonts) {
    LineExtent extent{0, 0, true};
    const Span* const rest = line.words.empty() ? nullptr : line.words.front().spans.data() + dropCapSpans(line);
    for (const Word& word : line.words) {
        for (const Span& span : word.spans) {
            if (&word == &line.words.front() && &span < rest)
                continue; // a drop cap takes no part in its line's height
            if (span.look.formula >= 0) {
                extent.ascent = std::max(extent.ascent, line.baseline - span.box.top);
                extent.descent = std::max(extent.descent, span.box.bottom - line.baseline);
                continue;
            }
            const MappedFont& font = fonts.font(page, span.look.font);
            const double size = writtenSize(span.look);
            const double ascent = span.look.isBold && font.boldAscent > 0 ? font.boldAscent : font.ascent;
            extent.ascent = std::max(extent.ascent, ascent * size);
            extent.descent = std::max(extent.descent, font.descent * size);
            extent.isKnown = extent.isKnown && font.isLineKnown;
        }
    }
    return extent;
}

LineExtent spacedExtent(const LineExtent& natural, const LineSpacing& spacing) {
    constexpr double kAscentShare = 0.8;
    const auto parted = [&](double height) {
        return LineExtent{kAscentShare * height, (1 - kAscentShare) * height, natural.isKnown};
    };
    switch (spacing.rule) {
    case LineSpacingRule::Exact:
        return parted(pointsFromTwips(spacing.height));
    case LineSpacingRule::AtLeast: {
        const double surplus = std::max(0.0, pointsFromTwips(spacing.height) - natural.height());
        return {natural.ascent + surplus, natural.descent, natural.isKnown};
    }
    case LineSpacingRule::Multiple:
        break;
    }
    if (spacing.multiple < 1)
        return parted(spacing.multiple * natural.height());
    return {natural.ascent, natural.descent + (spacing.multiple - 1) * natural.height(), natural.isKnown};
}

std::optional<LineSpacing> lineSpacingOf(const DraftParagraph& paragraph, const FontCatalog& fonts,
                                         const LayoutParameters& parameters) {
    // It needs all of its height: an exact one would cut it, a multiple would part it from its text.
    if (isFormulaLine(paragraph.firstLine()))
        return LineSpacing{};
    const Pitch pitch = pitchOf(paragraph, fonts, parameters.spacing.coarsePlace);
    if (pitch.natural <= 0 || pitch.distance <= parameters.spacing.overlap * pitch.natural)
        return std::nullopt;
    const double multiple = pitch.distance / pitch.natural;
    const auto& limits = parameters.spacing;
    const bool isBelievable = multiple >= limits.lowestMultiple && multiple <= limits.highestMultiple;
    const bool mayStandOnGrid = isEastAsian(paragraph);
    const double coarseness = limits.roundedLine + limits.coarsePlace / 2 / static_cast<double>(pitch.count);
    const auto chosen = chosenMultiple(pitch, mayStandOnGrid ? limits.nearGrid * pitch.natural : coarseness);
    const bool isOnGrid =
        mayStandOnGrid && chosen && std::abs(*chosen * pitch.natural - pitch.distance) > limits.sameGrid;
    // Another multiple than the usual ones tells that the font's lines are not as high as thought, or that the height
    // was set; one clearly below single spacing always does.
    const bool isSet = multiple < limits.leastChosen && !mayStandOnGrid;
    if (isBelievable && !isOnGrid && !isSet && (pitch.isKnown || chosen))
        return LineSpacing{
            LineSpacingRule::Multiple, chosen.value_or(mayStandOnGrid ? multiple : wholeHundredths(multiple)), {}};
    LineSpacing spacing = exactSpacing(pitch.distance, limits);
    if (hasFormula(paragraph))
        spacing.rule = LineSpacingRule::AtLeast; // an exact height would cut those that are higher
    return spacing;
}

} // namespace orvane::layout
