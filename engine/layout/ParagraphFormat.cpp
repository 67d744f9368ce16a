#include "layout/ParagraphFormat.h"

#include "layout/TabStopFinder.h"

#include <cmath>

namespace orvane::layout {
namespace {

/// Indents below this are noise of the positions.
Twips indent(double points, double smallest) {
    return std::abs(points) < smallest ? Twips(0) : twipsFromPoints(points);
}

} // namespace

document::ParagraphProperties formatOf(const DraftParagraph& paragraph, const LayoutParameters& parameters) {
    const ParagraphDraft& first = paragraph.pieces.front().text;
    const double smallest = parameters.spacing.smallestIndent;
    document::ParagraphProperties format;
    format.alignment = first.alignment;
    format.isRightToLeft = paragraph.firstLine().isRightToLeft;
    // The edges of centred lines follow from their lengths.
    if (first.alignment != document::Alignment::Center) {
        format.indentStart = indent(first.indentStart, smallest);
        format.indentEnd = indent(first.indentEnd, smallest);
        format.firstLine = indent(first.firstLine, smallest);
    }
    format.tabs = findTabStops(paragraph, parameters);
    return format;
}

} // namespace orvane::layout
