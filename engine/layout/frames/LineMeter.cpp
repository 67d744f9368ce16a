#include "layout/frames/LineMeter.h"

#include "base/Utf8.h"
#include "layout/fonts/FamilyWidths.h"
#include "layout/text/ScriptClass.h"

#include <numeric>

namespace orvane::layout {
namespace {

bool isUpright(const Line& line) {
    return line.angle == 90 || line.angle == 270;
}

/// Where the box starts along the line, in the direction of reading.
double startAlong(const Rect& box, const Line& line) {
    if (isUpright(line))
        return line.angle == 90 ? box.top : -box.bottom;
    return line.isRightToLeft ? -box.right : box.left;
}

FontFace faceOf(const Look& look) {
    return {look.isBold, look.isItalic};
}

/// Formats hold half points: what stands at 9.42 points on the page is set at 9.5. Units: points.
double writtenSize(const Look& look) {
    return halfPointsFromPoints(look.size).value / 2.0;
}

/// By how much all letters of the font are stretched.
double stretchOf(const MappedFont& font) {
    return font.widthPercent / 100.0;
}

bool areWidthsKnown(const Span& span, const MappedFont& font) {
    if (font.isCarried())
        return true;
    const bool isSimple = !font.isSymbol && scriptClassOf(span.text) == ScriptClass::Simple;
    return isSimple ? hasKnownWidths(font.family) : font.isLineKnown;
}

/// Natural width of a text. Units: em.
std::optional<double> widthIn(const MappedFont& font, FontFace face, const std::u32string& text) {
    if (!font.isCarried())
        return naturalWidth(text, font.family, face);
    double width = 0;
    for (const char32_t character : text) {
        const auto advance = font.carriedAdvances->find(character);
        if (advance == font.carriedAdvances->end())
            return std::nullopt;
        width += advance->second;
    }
    return width;
}

} // namespace

bool areWidthsKnown(const ParagraphDraft& text, std::size_t page, const FontCatalog& fonts) {
    for (const Line& line : text.lines)
        for (const Word& word : line.words)
            for (const Span& span : word.spans)
                if (!areWidthsKnown(span, fonts.font(page, span.look.font)))
                    return false;
    return true;
}

double PartMeasure::width() const {
    return std::accumulate(words.begin(), words.end(), 0.0,
                           [](double sum, const WordMeasure& word) { return sum + word.width; });
}

double PartMeasure::naturalWords() const {
    return std::accumulate(words.begin(), words.end(), 0.0,
                           [](double sum, const WordMeasure& word) { return sum + word.naturalWidth; });
}

double PartMeasure::naturalWidth() const {
    return std::accumulate(words.begin(), words.end(), 0.0, [](double sum, const WordMeasure& word) {
        return sum + word.blanks * word.naturalBlank + word.naturalWidth;
    });
}

bool isMeasurable(const Line& line) {
    return !line.isVertical && (line.angle == 0 || isUpright(line));
}

double lengthAlong(const Rect& box, const Line& line) {
    return isUpright(line) ? box.height() : box.width();
}

LineMeter::LineMeter(std::size_t page, const FontCatalog& fonts, Tracking tracking,
                     const FrameParameters::TextBoxes& parameters)
    : m_page(page)
    , m_fonts(fonts)
    , m_tracking(tracking)
    , m_parameters(parameters) {}

std::optional<PartMeasure> LineMeter::measure(const Line& line, std::span<const Word> words) const {
    PartMeasure part;
    double known = 0, unknown = 0; // points on the page
    for (const Word& word : words) {
        if (word.spans.empty())
            return std::nullopt;
        WordMeasure measure;
        measure.start = startAlong(word.box, line) - startAlong(words.front().box, line);
        for (const Span& span : word.spans) {
            const double length = lengthAlong(span.box, line);
            const std::optional<double> natural = naturalWidthOf(span, length);
            (natural ? known : unknown) += length;
            measure.naturalWidth += natural.value_or(length);
            measure.width += length;
        }
        if (!part.words.empty() && word.gapBefore != Gap::None) {
            const Look& look = (&word - 1)->spans.back().look;
            measure.blanks = word.blanksBefore;
            measure.naturalBlank = naturalBlank(look);
            part.knowsBlanks = part.knowsBlanks && widthIn(m_fonts.font(m_page, look.font), faceOf(look), U" ");
        }
        part.words.push_back(measure);
    }
    return unknown > known ? std::nullopt : std::optional(std::move(part));
}

double LineMeter::naturalBlank(const Look& look) const {
    const MappedFont& font = m_fonts.font(m_page, look.font);
    return widthIn(font, faceOf(look), U" ").value_or(m_parameters.usualBlank) * writtenSize(look) * stretchOf(font);
}

std::optional<double> LineMeter::naturalWidthOf(const Span& span, double length) const {
    const Look& look = span.look;
    const std::u32string text = utf32FromUtf8(span.text);
    const MappedFont& font = m_fonts.font(m_page, look.font);
    const bool isPlain = look.verticalPosition == document::VerticalPosition::Baseline && !look.isSmallCaps;
    const double kept = m_tracking == Tracking::Kept ? look.characterSpacing * static_cast<double>(text.size()) : 0;
    if (isPlain)
        if (const auto known = widthIn(font, faceOf(look), text))
            return *known * writtenSize(look) * stretchOf(font) + kept;
    // The font's own widths are those of its family, where it is one that word processors have.
    const bool isOwn = font.isLineKnown || font.isSymbol || scriptClassOf(span.text) != ScriptClass::Simple;
    if (!isOwn && text.size() > m_parameters.longestSign)
        return std::nullopt;
    return ownWidthOf(span, length, text.size()) + kept;
}

double LineMeter::ownWidthOf(const Span& span, double length, std::size_t characters) const {
    const Look& look = span.look;
    const double spacing = look.characterSpacing * static_cast<double>(characters);
    return (length - spacing) / look.horizontalScale * (writtenSize(look) / look.size);
}

} // namespace orvane::layout
