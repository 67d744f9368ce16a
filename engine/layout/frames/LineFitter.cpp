#include "layout/frames/LineFitter.h"

#include "base/Utf8.h"
#include "layout/fonts/FamilyWidths.h"
#include "layout/text/ScriptClass.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace orvane::layout {
namespace {

using document::Alignment;
using Parameters = FrameParameters::TextBoxes;

/// Widths along a line. Units: points.
struct LineWidths {
    double words = 0;         ///< of the words on the page
    double naturalWords = 0;  ///< of the words as a word processor sets them
    double naturalBlanks = 0; ///< between them, likewise
};

/// True for lines whose boxes are as long as they are: level ones, and those that run up or down the page.
bool isUpright(const Line& line) {
    return line.angle == 90 || line.angle == 270;
}
bool isMeasurable(const Line& line) {
    return !line.isVertical && (line.angle == 0 || isUpright(line));
}

/// How far the box reaches along the line.
double lengthOf(const Rect& box, const Line& line) {
    return isUpright(line) ? box.height() : box.width();
}

/// Reads how wide a line would be.
class LineMeter {
public:
    LineMeter(std::size_t page, const FontCatalog& fonts, Tracking tracking, const Parameters& parameters)
        : m_page(page)
        , m_fonts(fonts)
        , m_tracking(tracking)
        , m_parameters(parameters) {}

    /// nullopt for parts of the line that cannot be measured.
    std::optional<LineWidths> measure(const Line& line, std::span<const Word> words) const {
        LineWidths widths;
        for (const Word& word : words) {
            const bool isFirst = &word == &words.front();
            if (word.spans.empty())
                return std::nullopt;
            for (const Span& span : word.spans) {
                const std::optional<double> natural = naturalWidthOf(span, lengthOf(span.box, line));
                if (!natural)
                    return std::nullopt;
                widths.naturalWords += *natural;
                widths.words += lengthOf(span.box, line);
            }
            if (isFirst || word.gapBefore == Gap::None)
                continue;
            widths.naturalBlanks += naturalBlank(word.spans.front().look);
        }
        return widths;
    }

private:
    static FontFace faceOf(const Look& look) { return {look.isBold, look.isItalic}; }

    /// Formats hold half points: what stands at 9.42 points on the page is set at 9.5. Units: points.
    static double writtenSize(const Look& look) { return halfPointsFromPoints(look.size).value / 2.0; }

    double naturalBlank(const Look& look) const {
        const MappedFont& font = m_fonts.font(m_page, look.font);
        return advanceOf(font.family, faceOf(look), U' ').value_or(m_parameters.usualBlank) * writtenSize(look) *
               stretchOf(font);
    }

    /// By how much all letters of the font are stretched.
    static double stretchOf(const MappedFont& font) { return font.widthPercent / 100.0; }

    std::optional<double> naturalWidthOf(const Span& span, double length) const {
        const Look& look = span.look;
        const std::u32string text = utf32FromUtf8(span.text);
        const double spacing = look.characterSpacing * static_cast<double>(text.size());
        const double kept = m_tracking == Tracking::Kept ? spacing : 0;
        const MappedFont& font = m_fonts.font(m_page, look.font);
        const bool isPlain = look.verticalPosition == document::VerticalPosition::Baseline && !look.isSmallCaps;
        if (isPlain)
            if (const auto known = naturalWidth(text, font.family, faceOf(look)))
                return *known * writtenSize(look) * stretchOf(font) + kept;
        // The font's own widths are those of its family, where it is one that word processors have.
        const bool isOwn = font.isLineKnown || font.isSymbol || scriptClassOf(span.text) != ScriptClass::Simple;
        if (!isOwn && text.size() > m_parameters.longestSign)
            return std::nullopt;
        return (length - spacing) / look.horizontalScale * (writtenSize(look) / look.size) + kept;
    }

    std::size_t m_page;
    const FontCatalog& m_fonts;
    Tracking m_tracking;
    const Parameters& m_parameters;
};

/// What happens to a line that turns out longer than it is on the page.
enum class LineEnd {
    Free, ///< it ends a little later
    Held, ///< it is cut in two, for it stands between two edges
};

/// By how much the line's characters are to be stretched; 1 for not at all.
double stretchFor(const LineWidths& widths, double lineWidth, LineEnd end, const Parameters& parameters) {
    const double natural = widths.naturalWords + widths.naturalBlanks;
    if (widths.naturalWords <= 0 || widths.words <= 0)
        return 1;
    double stretch = widths.words / widths.naturalWords;
    if (std::abs(stretch - 1) < parameters.leastStretch)
        stretch = 1;
    // Blanks that are narrower than a word processor's make a line too long; wider ones are left to it.
    const double longest = lineWidth * (end == LineEnd::Held ? 1 - parameters.fitSlack : 1 + parameters.freeSlack);
    if (stretch * natural > longest)
        stretch = std::min((end == LineEnd::Held ? longest : lineWidth) / natural, 1 - parameters.leastStretch);
    return stretch < parameters.narrowest || stretch > parameters.widest ? 1 : stretch;
}

/// The scale nearest to the stretch for which the format holds the product with the font's own: whole percents.
double writtenScale(double stretch, int fontPercent, LineEnd end) {
    // Half a percent more would cut a line that stands between two edges in two; a little error of arithmetic must not.
    constexpr double kArithmetic = 1e-6;
    const double percent = stretch * fontPercent;
    return (end == LineEnd::Held ? std::floor(percent + kArithmetic) : std::round(percent)) / fontPercent;
}

/// The words between two tabulators, or a tabulator and an end of the line.
std::vector<std::span<Word>> partsOf(std::vector<Word>& words) {
    std::vector<std::span<Word>> parts;
    for (std::size_t first = 0, last = 1; last <= words.size(); ++last)
        if (last == words.size() || words[last].gapBefore == Gap::Tab) {
            parts.emplace_back(words.data() + first, last - first);
            first = last;
        }
    return parts;
}

double lengthOf(std::span<const Word> part, const Line& line) {
    Rect box;
    for (const Word& word : part)
        box = box.united(word.box);
    return lengthOf(box, line);
}

/// From where the line starts to the other edge of its paragraph.
double roomFor(const Line& line, const ParagraphDraft& text) {
    return line.isRightToLeft ? line.box.right - text.box.left : text.box.right - line.box.left;
}

/// Stretches each part of the line to its width on the page.
void fitLine(Line& line, const DraftPiece& piece, const LineMeter& meter, const FontCatalog& fonts,
             const Parameters& parameters) {
    const LineEnd end = piece.text.alignment == Alignment::Justified ? LineEnd::Held : LineEnd::Free;
    const std::vector<std::span<Word>> parts = partsOf(line.words);
    // Lines between two edges take what is left at their tabulators.
    if (end == LineEnd::Held && parts.size() > 1)
        return;
    for (const std::span<Word> part : parts) {
        const std::optional<LineWidths> widths = meter.measure(line, part);
        if (!widths)
            continue;
        const double room = end == LineEnd::Held ? roomFor(line, piece.text) : lengthOf(part, line);
        const double stretch = stretchFor(*widths, room, end, parameters);
        for (Word& word : part)
            for (Span& span : word.spans)
                span.look.horizontalScale =
                    writtenScale(stretch, fonts.font(piece.page, span.look.font).widthPercent, end);
    }
}

} // namespace

void fitLines(std::vector<DraftBlock>& frames, const FontCatalog& fonts, Tracking tracking,
              const Parameters& parameters) {
    for (DraftBlock& frame : frames) {
        DraftPiece& piece = frame.paragraph()->pieces.front();
        const LineMeter meter(piece.page, fonts, tracking, parameters);
        for (Line& line : piece.text.lines)
            if (isMeasurable(line))
                fitLine(line, piece, meter, fonts, parameters);
    }
}

} // namespace orvane::layout
