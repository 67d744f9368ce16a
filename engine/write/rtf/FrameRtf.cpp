#include "write/rtf/FrameRtf.h"

#include "write/rtf/BlockRtf.h"
#include "write/rtf/NoteRtf.h"
#include "write/rtf/ParagraphRtf.h"
#include "write/rtf/ShapeProperties.h"

#include <utility>

namespace orvane::write::rtf {
namespace {

using namespace document;

constexpr int kTextBox = 202;

/// Source: [MS-ODRAW] 2.4.5 (MSOTXFL).
int flowNumber(TextDirection direction) {
    switch (direction) {
    case TextDirection::Horizontal:
        return 0;
    case TextDirection::Upwards:
        return 2;
    case TextDirection::Downwards:
        return 3;
    }
    return 0;
}

void writeProperties(Story& story, const Frame& frame) {
    RtfStream& rtf = story.rtf;
    writePlacement(story, frame.placement, {frame.width, frame.height, frame.rotation});
    writeShapeProperty(rtf, "shapeType", kTextBox);
    if (frame.rotation != 0)
        writeShapeProperty(rtf, "rotation", shapeAngle(frame.rotation));
    writeShapeProperty(rtf, "dxTextLeft", shapeLength(frame.insetLeft));
    writeShapeProperty(rtf, "dyTextTop", shapeLength(frame.insetTop));
    writeShapeProperty(rtf, "dxTextRight", shapeLength(frame.insetRight));
    writeShapeProperty(rtf, "dyTextBottom", shapeLength(frame.insetBottom));
    if (frame.direction != TextDirection::Horizontal)
        writeShapeProperty(rtf, "txflTextFlow", flowNumber(frame.direction));
    writeShapeProperty(rtf, "fFitShapeToText", growsWithText(frame) ? 1 : 0);
    writeFill(rtf, frame.fill, 1);
    writeOutlineLook(rtf, frame.line, 1);
}

} // namespace

void writeFrame(Story& around, const Frame& frame) {
    const RtfGroup shape(around.rtf, "shp");
    const RtfDestination instance(around.rtf, "shpinst");
    writeProperties(around, frame);
    const RtfGroup text(around.rtf, "shptxt");
    // The box's paragraphs are not those of the table around it.
    Story story{around.state, around.rtf, around.kind};
    story.frameDepth = around.frameDepth + 1;
    writeBlocks(story, frame.blocks);
    writeDisplacedNotes(story);
    endParagraph(story, "par");
    around.displacedComments = std::move(story.displacedComments);
    around.displacedFloats = std::move(story.displacedFloats);
}

} // namespace orvane::write::rtf
