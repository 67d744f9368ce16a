#include "layout/assembly/FrameAssembler.h"

#include "base/Utf8.h"
#include "layout/fonts/LineMetrics.h"
#include "layout/frames/LineFitter.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace orvane::layout {
namespace {

using document::Alignment;
using document::Frame;
using document::LineSpacing;
using document::LineSpacingRule;

/// A frame before it is turned. Units: points.
struct FrameBox {
    Rect box;
    double rotation = 0;
    document::TextDirection direction = document::TextDirection::Horizontal;
};

LineSpacing exactly(double points) {
    return {LineSpacingRule::Exact, 1.0, twipsFromPoints(points)};
}

/// The height of the lines: their pitch, of a single one what it needs.
double pitchOf(const ParagraphDraft& text, const LineExtent& extent) {
    return text.leading > 0 ? text.leading : extent.height();
}

/// Level lines: `room` is added where the text may grow to, up to the page's edge: word processors push boxes that
/// reach over it back onto the page.
FrameBox levelBox(const ParagraphDraft& text, const LineExtent& extent, double room, double pageWidth) {
    const double pitch = pitchOf(text, extent);
    const double top = text.lines.front().baseline - spacedExtent(extent, exactly(pitch)).ascent;
    Rect box{text.box.left, top, text.box.right,
             top + pitch * static_cast<double>(text.lines.size() - text.linesBelow)};
    const bool isRightToLeft = text.lines.front().isRightToLeft;
    const bool growsLeft = text.alignment == (isRightToLeft ? Alignment::Start : Alignment::End);
    if (text.alignment == Alignment::Center) {
        box.left -= room / 2;
        box.right += room / 2;
    } else if (text.alignment != Alignment::Justified) {
        (growsLeft ? box.left : box.right) += growsLeft ? -room : room;
    }
    box.left = std::max(box.left, std::min(text.box.left, 0.0));
    box.right = std::min(box.right, std::max(text.box.right, pageWidth));
    return {box, 0, {}};
}

/// A line that runs down or up the page, with room behind it.
FrameBox uprightBox(const Line& line, const LineExtent& extent, double roomShare) {
    const bool runsDown = line.angle == 90;
    const double room = roomShare * line.box.height();
    const double left = line.box.centerX() - extent.height() / 2;
    Rect box{left, line.box.top, left + extent.height(), line.box.bottom};
    (runsDown ? box.bottom : box.top) += runsDown ? room : -room;
    return {box, 0, runsDown ? document::TextDirection::Downwards : document::TextDirection::Upwards};
}

/// A turned line has the size of a level one and turns about its middle.
FrameBox turnedBox(const Line& line, const LineExtent& extent, double roomShare) {
    if (line.angle == 90 || line.angle == 270)
        return uprightBox(line, extent, roomShare);
    const double angle = line.angle * std::numbers::pi / 180;
    const double sine = std::abs(std::sin(angle)), cosine = std::abs(std::cos(angle));
    const double height = extent.height();
    const double length =
        sine > cosine ? (line.box.height() - height * cosine) / sine : (line.box.width() - height * sine) / cosine;
    const double width = std::max(length, height) * (1 + roomShare);
    // The room is behind the text, so the middle moves that way.
    const double shift = (width - std::max(length, height)) / 2;
    const double x = line.box.centerX() + shift * std::cos(angle);
    const double y = line.box.centerY() + shift * std::sin(angle);
    return {{x - width / 2, y - height / 2, x + width / 2, y + height / 2}, line.angle, {}};
}

/// Vertical writing: a frame so narrow that each character has a line of its own.
FrameBox verticalBox(const Line& line) {
    return {line.box, 0, {}};
}

double characterPitch(const Line& line) {
    std::size_t count = 0;
    for (const Word& word : line.words)
        count += utf32FromUtf8(textOf(word)).size();
    return line.box.height() / static_cast<double>(std::max<std::size_t>(1, count));
}

void place(Frame& frame, const FrameBox& at) {
    frame.placement.x = emuFromPoints(at.box.left);
    frame.placement.y = emuFromPoints(at.box.top);
    frame.placement.wrapping = document::Wrapping::None;
    frame.width = emuFromPoints(at.box.width());
    frame.height = emuFromPoints(at.box.height());
    frame.rotation = at.rotation;
    frame.direction = at.direction;
}

/// What the paragraph must not take from its style.
void standStill(document::ParagraphProperties& properties, double pitch) {
    properties.lineSpacing = exactly(pitch);
    properties.spaceBefore = {};
    properties.spaceAfter = {};
    properties.isContextualSpacing = false;
    properties.keepWithNext = false;
    properties.pageBreakBefore = false;
    properties.hasWidowControl = false;
    properties.borders = {};
    properties.shading.reset();
}

} // namespace

Frame frameOf(AssembledBlock block, const AssemblyContext& context) {
    const DraftPiece& piece = block.draftParagraph()->pieces.front();
    const ParagraphDraft& text = piece.text;
    const Line& first = text.lines.front();
    const auto& parameters = context.parameters.textBoxes;
    const LineExtent extent = extentOf(first, piece.page, context.fonts);
    const double room = !text.wrappingLines.empty()
                            ? tightRoom(text.box.width(), parameters)
                            : std::max(parameters.leastRoom, parameters.room * text.box.width());

    document::Paragraph& paragraph = *block.paragraph();
    Frame frame;
    double pitch = pitchOf(text, extent);
    if (first.isVertical) {
        place(frame, verticalBox(first));
        pitch = characterPitch(first);
    } else if (first.angle != 0) {
        place(frame, turnedBox(first, extent, parameters.room));
    } else {
        place(frame, levelBox(text, extent, room, context.draft.pages[piece.page].width));
        paragraph.properties.alignment = text.alignment;
        paragraph.properties.indentStart = twipsFromPoints(text.indentStart);
        paragraph.properties.firstLine = twipsFromPoints(text.firstLine);
    }
    if (first.isVertical || first.angle != 0) {
        paragraph.properties.alignment = Alignment::Start;
        paragraph.properties.indentStart = {};
        paragraph.properties.firstLine = {};
    }
    paragraph.properties.indentEnd = {};
    standStill(paragraph.properties, pitch);
    frame.placement.zOrder = static_cast<int>(first.firstPaintOrder);
    frame.growth = text.linesBelow > 0 ? document::FrameGrowth::Never : document::FrameGrowth::WithText;
    frame.origin = paragraph.origin;
    frame.blocks.push_back(std::move(block.block));
    return frame;
}

} // namespace orvane::layout
