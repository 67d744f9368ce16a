#include "layout/paragraphs/CentredNeighbours.h"

#include "layout/paragraphs/ListMarker.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace orvane::layout {
namespace {

using document::Alignment;

/// Two paragraphs that belong to one centred block.
bool sharesMiddle(const ParagraphDraft& paragraph, const ParagraphDraft& centred,
                  const ParagraphParameters::Paragraphs& limits) {
    const double size = paragraph.lines.front().fontSize;
    const double gap = std::max(paragraph.box.top - centred.box.bottom, centred.box.top - paragraph.box.bottom);
    // With an empty line between them they are two blocks.
    return centred.alignment == Alignment::Center && gap < paragraph.leading &&
           std::abs(paragraph.box.centerX() - centred.box.centerX()) <= limits.edgeTolerance * size;
}

bool mayBeCentred(const ParagraphDraft& paragraph, const ParagraphParameters& parameters) {
    return paragraph.lines.size() == 1 && paragraph.alignment == Alignment::Start &&
           !findListMarker(paragraph.lines.front(), parameters.markers);
}

} // namespace

void centreAmongCentred(std::vector<ParagraphDraft>& paragraphs, const ParagraphParameters& parameters) {
    const ParagraphParameters::Paragraphs& limits = parameters.paragraphs;
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < paragraphs.size(); ++i) {
        const ParagraphDraft& paragraph = paragraphs[i];
        if (!mayBeCentred(paragraph, parameters))
            continue;
        const bool isBelow = i > 0 && sharesMiddle(paragraph, paragraphs[i - 1], limits);
        const bool isAbove = i + 1 < paragraphs.size() && sharesMiddle(paragraph, paragraphs[i + 1], limits);
        // A line from edge to edge has the column's middle whatever it is; only within a block it is centred.
        const bool isIndented = paragraph.indentStart > limits.minimumCenterIndent * paragraph.lines.front().fontSize;
        if (isIndented ? isBelow || isAbove : isBelow && isAbove)
            found.push_back(i);
    }
    for (const std::size_t i : found) {
        paragraphs[i].alignment = Alignment::Center;
        paragraphs[i].indentStart = paragraphs[i].indentEnd = paragraphs[i].firstLine = 0;
    }
}

void startAmongStarts(std::vector<ParagraphDraft>& paragraphs, const ColumnSpan& column,
                      const ParagraphParameters& parameters) {
    const ParagraphParameters::Paragraphs& limits = parameters.paragraphs;
    std::vector<double> starts;
    for (const ParagraphDraft& paragraph : paragraphs)
        if (paragraph.alignment == Alignment::Start && paragraph.lines.size() == 1)
            starts.push_back(paragraph.box.left);
    std::sort(starts.begin(), starts.end());
    for (ParagraphDraft& paragraph : paragraphs) {
        const bool isMoved = paragraph.alignment == Alignment::Center || paragraph.alignment == Alignment::End;
        if (!isMoved || paragraph.lines.size() != 1 || paragraph.lines.front().isRightToLeft)
            continue;
        const double slack = limits.flushTolerance * paragraph.lines.front().fontSize;
        const auto first = std::lower_bound(starts.begin(), starts.end(), paragraph.box.left - slack);
        const auto last = std::upper_bound(first, starts.end(), paragraph.box.left + slack);
        if (last - first <= limits.flushLines)
            continue;
        paragraph.alignment = Alignment::Start;
        paragraph.indentStart = paragraph.box.left - column.left;
    }
}

} // namespace orvane::layout
