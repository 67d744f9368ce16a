#include "layout/assembly/ParagraphFormat.h"

#include "base/Utf8.h"
#include "layout/assembly/LineSpare.h"
#include "layout/assembly/TabStopFinder.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace orvane::layout {
namespace {

using document::Alignment;

/// Indents below this are noise of the positions.
Twips indent(double points, double smallest) {
    return std::abs(points) < smallest ? Twips(0) : twipsFromPoints(points);
}

/// Measures the indents from the section's column, whose edges the page alone did not show.
void setIndents(const DraftParagraph& paragraph, const LayoutParameters& parameters,
                document::ParagraphProperties& format) {
    const AssemblyParameters::Spacing& limits = parameters.spacing;
    const DraftPiece& piece = paragraph.pieces.front();
    const Line& line = piece.text.lines.front();
    const double left =
        piece.text.dropCap == document::DropCapKind::InMargin ? startBehindDropCap(line) : line.box.left;
    const double first = line.isRightToLeft ? piece.column.right - line.box.right : left - piece.column.left;
    format.indentStart = indent(first - piece.text.firstLine, limits.smallestIndent);
    format.firstLine = indent(piece.text.firstLine, limits.smallestIndent);
    const double end = roomBehind(piece);
    // Ideographs leave less than one of them free, and a full stop of theirs may stand beyond the edge.
    const double least = endsWithoutBlanks(line) ? line.fontSize
                         : end > 0               ? limits.smallestEndIndent
                                                 : limits.smallestIndent;
    if (const auto spare = spareOf(paragraph, parameters.lineSpares); spare && end < *spare)
        format.indentEnd = twipsFromPoints(end - *spare);
    else if ((format.alignment == Alignment::Justified || end < 0) && std::abs(end) >= least)
        format.indentEnd = twipsFromPoints(end - parameters.pageSetup.roomSlack);
    else if (const auto& own = piece.text.ownEnd)
        format.indentEnd =
            indent(line.isRightToLeft ? *own - piece.column.left : piece.column.right - *own, line.fontSize);
}

/// The start of lines that are set against the end follows from their lengths. Running heads may be wider than the
/// text; in a cell, or in a section wider than the page shows, lines end before the edge.
void setIndentsAtEnd(const DraftParagraph& paragraph, const LayoutParameters& parameters,
                     document::ParagraphProperties& format) {
    const DraftPiece& piece = paragraph.pieces.front();
    format.indentEnd = indent(roomBehind(piece), parameters.spacing.smallestIndent);
    const auto spare = spareOf(paragraph, parameters.lineSpares);
    if (!spare)
        return;
    const Rect& line = piece.text.lines.front().box;
    const double before = format.isRightToLeft ? piece.column.right - line.right : line.left - piece.column.left;
    format.indentStart = twipsFromPoints(std::min(0.0, before - *spare));
}

/// Both edges of centred lines follow from their lengths.
void setIndentsAboutMiddle(const DraftParagraph& paragraph, const LayoutParameters& parameters,
                           document::ParagraphProperties& format) {
    const auto spare = spareOf(paragraph, parameters.lineSpares);
    if (!spare)
        return;
    const ColumnSpan& column = paragraph.pieces.front().column;
    const double room = column.right - column.left - paragraph.firstLine().box.width();
    format.indentStart = format.indentEnd = twipsFromPoints(std::min(0.0, (room - *spare) / 2));
}

/// Lets the shading of a single line go from where to where its ground did; the line stays where it stands.
void takeShadedSpan(const DraftParagraph& paragraph, document::ParagraphProperties& format) {
    const DraftPiece& piece = paragraph.pieces.front();
    const std::optional<ColumnSpan>& span = piece.text.shadedSpan;
    if (!span || paragraph.list || paragraph.pieces.size() > 1)
        return;
    const Line& line = piece.text.lines.front();
    const double atLeft = span->left - piece.column.left, atRight = piece.column.right - span->right;
    format.indentStart = twipsFromPoints(line.isRightToLeft ? atRight : atLeft);
    format.indentEnd = twipsFromPoints(line.isRightToLeft ? atLeft : atRight);
    if (format.alignment != Alignment::Center)
        format.firstLine =
            twipsFromPoints(line.isRightToLeft ? span->right - line.box.right : line.box.left - span->left);
}

/// How far from the left or right side of the page a line reaches in its direction.
double reachOf(const Line& line) {
    return line.isRightToLeft ? -line.box.left : line.box.right;
}

/// Whether the last line is fuller than all before it, which it never is in justified text.
bool isLastFullest(const DraftParagraph& paragraph, double tolerance) {
    const std::vector<Line>& lines = paragraph.pieces.front().text.lines;
    if (paragraph.pieces.size() > 1 || lines.size() < 2)
        return false;
    return std::none_of(lines.begin(), lines.end() - 1,
                        [&](const Line& line) { return reachOf(line) + tolerance >= reachOf(lines.back()); });
}

/// Whether the paragraph is a column of single words, as of a list that runs down the page: nothing in them could be
/// spread up to an edge.
bool isWordColumn(const DraftParagraph& paragraph) {
    const std::vector<Line>& lines = paragraph.pieces.front().text.lines;
    return lines.size() > 2 && std::none_of(lines.begin(), lines.end(), [](const Line& line) {
               return line.words.size() > 1 || endsWithoutBlanks(line);
           });
}

/// An item has the indents of its list's level unless it clearly stands elsewhere.
void takeListIndents(const document::NumberingLevel& level, std::size_t lines, double tolerance,
                     document::ParagraphProperties& format) {
    const auto isNear = [tolerance](Twips a, Twips b) {
        return std::abs(a.value - b.value) <= twipsFromPoints(tolerance).value;
    };
    const bool startsAlike = isNear(format.indentStart + format.firstLine, level.indentStart + level.firstLine);
    const bool goesOnAlike = lines == 1 || isNear(format.indentStart, level.indentStart);
    // Numbers may be set against their right edge; their texts stand in line then.
    if ((startsAlike && goesOnAlike) || (goesOnAlike && isNear(format.indentStart, level.indentStart))) {
        format.indentStart = level.indentStart;
        format.firstLine = level.firstLine;
    }
}

/// What is drawn above the first piece and below the last, and along the first.
void takeBorders(const DraftParagraph& paragraph, document::ParagraphProperties& format) {
    const ParagraphDraft& first = paragraph.pieces.front().text;
    format.borders = first.borders;
    format.borders.bottom = paragraph.pieces.back().text.borders.bottom;
    format.shading = first.shading;
    // Word processors draw no rule between paragraphs with equal borders unless told so.
    if (format.borders.left.kind != document::BorderKind::None)
        return;
    if (format.borders.top.kind == document::BorderKind::None)
        format.betweenBorder = format.borders.bottom;
    else if (format.borders.bottom.kind == document::BorderKind::None)
        format.betweenBorder = format.borders.top;
}

/// Of a paragraph that goes on in another column the longest part tells how it is set: the two lines that fit at the
/// foot of the first one may look ragged by chance.
Alignment alignmentOf(const DraftParagraph& paragraph) {
    const auto longest = std::max_element(
        paragraph.pieces.begin(), paragraph.pieces.end(),
        [](const DraftPiece& a, const DraftPiece& b) { return a.text.lines.size() < b.text.lines.size(); });
    return longest->text.alignment;
}

} // namespace

double roomBehind(const DraftPiece& piece) {
    double room = std::numeric_limits<double>::infinity();
    for (const Line& line : piece.text.lines)
        room = std::min(room,
                        line.isRightToLeft ? line.box.left - piece.column.left : piece.column.right - line.box.right);
    return room;
}

document::ParagraphProperties formatOf(const DraftParagraph& paragraph, const std::vector<DraftNumbering>& numberings,
                                       const LayoutParameters& parameters) {
    const DraftPiece& first = paragraph.pieces.front();
    document::ParagraphProperties format;
    format.alignment = alignmentOf(paragraph);
    format.isRightToLeft = paragraph.firstLine().isRightToLeft;
    if (format.alignment == Alignment::Justified &&
        (isLastFullest(paragraph, parameters.spacing.smallestEndIndent) || isWordColumn(paragraph)))
        format.alignment = Alignment::Start;
    if (format.alignment == Alignment::End)
        setIndentsAtEnd(paragraph, parameters, format);
    else if (format.alignment == Alignment::Center)
        setIndentsAboutMiddle(paragraph, parameters, format);
    else
        setIndents(paragraph, parameters, format);
    if (paragraph.list)
        takeListIndents(
            numberings[paragraph.list->numbering].numbering.levels[static_cast<std::size_t>(paragraph.list->level)],
            first.text.lines.size(), parameters.lists.sameIndent, format);
    takeShadedSpan(paragraph, format);
    takeBorders(paragraph, format);
    format.tabs = findTabStops(paragraph, parameters);
    return format;
}

} // namespace orvane::layout
