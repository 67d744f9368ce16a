#include "layout/paragraphs/ParagraphShape.h"

#include "base/Utf8.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvane::layout {
namespace {

using document::Alignment;

bool isCentered(const LineMeasure& line, double tolerance, double minimumIndent) {
    return std::abs(line.startGap - line.endGap) <= 2 * tolerance && line.startGap > minimumIndent;
}

/// A paragraph of several lines whose middles agree, with at least one that is clearly short.
bool isCenteredParagraph(std::span<const LineMeasure> measures, double tolerance, double minimumIndent) {
    bool hasShortLine = false;
    for (const LineMeasure& line : measures) {
        if (std::abs(line.startGap - line.endGap) > 2 * tolerance)
            return false;
        hasShortLine = hasShortLine || line.startGap > minimumIndent;
    }
    return hasShortLine;
}

bool isEndAligned(std::span<const LineMeasure> measures, double tolerance, double minimumIndent) {
    if (std::any_of(measures.begin(), measures.end(),
                    [tolerance](const LineMeasure& line) { return std::abs(line.endGap) > tolerance; }))
        return false;
    const auto startsBefore = [](const LineMeasure& a, const LineMeasure& b) { return a.startGap < b.startGap; };
    // The first of several lines may have an indent of its own.
    const auto rest = measures.size() > 2 ? measures.subspan(1) : measures;
    const auto [first, last] = std::minmax_element(rest.begin(), rest.end(), startsBefore);
    return measures.size() == 1 ? first->startGap > minimumIndent
                                : last->startGap - first->startGap > tolerance && last->startGap > minimumIndent;
}

/// Typesetters let hyphens and points reach over the edge, so that it looks straight.
bool endsInHangingSign(const Line& line) {
    constexpr std::u32string_view kSigns = U"-\u2010\u00AD\u2013.,;:'\"\u2019\u201D\u00BB)";
    const std::u32string text = utf32FromUtf8(textOf(line.words.back()));
    return !text.empty() && kSigns.find(text.back()) != std::u32string_view::npos;
}

/// All lines but the last end at one edge, and so exactly or with such wide blanks that it is no chance.
bool isJustified(std::span<const LineMeasure> measures, std::span<const Line> lines, double fontSize,
                 const ParagraphParameters::Paragraphs& parameters) {
    if (measures.size() < 2)
        return false;
    const double flush = parameters.flushTolerance * fontSize, hang = parameters.hangingShare * fontSize;
    int stretched = 0;
    double edge = measures[0].endGap;
    for (std::size_t i = 0; i + 1 < measures.size(); ++i)
        edge = endsInHangingSign(lines[i]) ? edge : std::max(edge, measures[i].endGap);
    for (std::size_t i = 0; i + 1 < measures.size(); ++i) {
        const double over = edge - measures[i].endGap;
        if (over < -flush || over > flush + (endsInHangingSign(lines[i]) ? hang : 0))
            return false;
        stretched += measures[i].meanGap > parameters.stretchedGap * measures[i].blank ? 1 : 0;
    }
    return measures.size() > 3 || stretched > 0;
}

Alignment findAlignment(std::span<const LineMeasure> measures, std::span<const Line> lines,
                        const ParagraphParameters::Paragraphs& parameters) {
    const double fontSize = lines[0].fontSize;
    const double tolerance = parameters.edgeTolerance * fontSize;
    const double indent = parameters.minimumCenterIndent * fontSize;
    if (isJustified(measures, lines, fontSize, parameters))
        return Alignment::Justified;
    if (measures[0].marker || (measures.size() == 1 && hasTabulator(lines[0])))
        return Alignment::Start;
    if (measures.size() == 1 ? isCentered(measures[0], tolerance, indent)
                             : isCenteredParagraph(measures, tolerance, indent))
        return Alignment::Center;
    return isEndAligned(measures, tolerance, indent) ? Alignment::End : Alignment::Start;
}

void setIndents(ParagraphDraft& paragraph, std::span<const LineMeasure> measures) {
    const LineMeasure& first = measures[0];
    if (paragraph.alignment == Alignment::Center || paragraph.alignment == Alignment::End)
        return;
    paragraph.indentStart = first.marker ? first.textStart : first.startGap;
    if (measures.size() > 1) {
        paragraph.indentStart = measures[1].startGap;
        for (const LineMeasure& line : measures.subspan(1))
            paragraph.indentStart = std::min(paragraph.indentStart, line.startGap);
    }
    paragraph.firstLine = first.startGap - paragraph.indentStart;
    paragraph.indentEnd = first.endInset;
    if (paragraph.alignment == Alignment::Justified)
        paragraph.indentEnd += std::max(0.0, first.endGap);
}

/// Ragged lines do not show to the point where they were set to end.
std::optional<double> ownEndOf(const ParagraphDraft& paragraph, std::span<const LineMeasure> measures) {
    const LineMeasure& first = measures[0];
    if (paragraph.alignment != Alignment::Start || measures.size() == 1 || first.endPlay >= first.endInset)
        return std::nullopt;
    const Line& line = paragraph.lines.front();
    const double beyond = first.endGap + first.endPlay / 2;
    return line.isRightToLeft ? line.box.left - beyond : line.box.right + beyond;
}

double leadingOf(std::span<const Line> lines, const ParagraphContext& context) {
    if (lines.size() > 1)
        return (lines.back().baseline - lines.front().baseline) / static_cast<double>(lines.size() - 1);
    const auto& spans = lines[0].words.empty() ? std::vector<Span>{} : lines[0].words[0].spans;
    const std::size_t font = spans.empty() ? context.fonts.size() : spans[0].look.font;
    const double em = font < context.fonts.size() ? context.fonts[font].ascent + context.fonts[font].descent : 1.2;
    return em * lines[0].fontSize;
}

} // namespace

void shapeParagraph(ParagraphDraft& paragraph, std::span<const LineMeasure> measures, const ParagraphContext& context,
                    const ParagraphParameters::Paragraphs& parameters) {
    paragraph.box = {};
    for (const Line& line : paragraph.lines)
        paragraph.box = paragraph.box.united(line.box);
    paragraph.alignment = findAlignment(measures, paragraph.lines, parameters);
    setIndents(paragraph, measures);
    paragraph.ownEnd = ownEndOf(paragraph, measures);
    paragraph.leading = leadingOf(paragraph.lines, context);
    paragraph.dropCap = measures[0].dropCap;
}

} // namespace orvane::layout
