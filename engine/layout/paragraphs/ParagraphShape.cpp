#include "layout/paragraphs/ParagraphShape.h"

#include <algorithm>
#include <cmath>

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
    double least = measures[0].startGap;
    double most = least;
    for (const LineMeasure& line : measures) {
        if (std::abs(line.endGap) > tolerance)
            return false;
        least = std::min(least, line.startGap);
        most = std::max(most, line.startGap);
    }
    return measures.size() == 1 ? least > minimumIndent : most - least > tolerance && most > minimumIndent;
}

/// All lines but the last end at one edge, and so exactly or with such wide blanks that it is no chance.
bool isJustified(std::span<const LineMeasure> measures, double flush,
                 const ParagraphParameters::Paragraphs& parameters) {
    if (measures.size() < 2)
        return false;
    int stretched = 0;
    const double edge = measures[0].endGap;
    for (const LineMeasure& line : measures.first(measures.size() - 1)) {
        if (std::abs(line.endGap - edge) > flush)
            return false;
        stretched += line.meanGap > parameters.stretchedGap * line.blank ? 1 : 0;
    }
    return measures.size() > 3 || stretched > 0;
}

Alignment findAlignment(std::span<const LineMeasure> measures, double fontSize,
                        const ParagraphParameters::Paragraphs& parameters) {
    const double tolerance = parameters.edgeTolerance * fontSize;
    const double indent = parameters.minimumCenterIndent * fontSize;
    if (isJustified(measures, parameters.flushTolerance * fontSize, parameters))
        return Alignment::Justified;
    if (measures[0].marker)
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
    paragraph.alignment = findAlignment(measures, paragraph.lines[0].fontSize, parameters);
    setIndents(paragraph, measures);
    paragraph.leading = leadingOf(paragraph.lines, context);
}

} // namespace orvane::layout
