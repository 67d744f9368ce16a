#include "write/docx/FrameXml.h"

#include "write/docx/BlockXml.h"
#include "write/docx/DrawingXml.h"
#include "write/docx/NotesPart.h"
#include "write/docx/ShapeXml.h"

namespace orvane::write::docx {
namespace {

using namespace document;

const char* nameOf(TextDirection direction) {
    switch (direction) {
    case TextDirection::Horizontal:
        return "horz";
    case TextDirection::Downwards:
        return "vert";
    case TextDirection::Upwards:
        return "vert270";
    }
    return "horz";
}

void writeProperties(XmlWriter& xml, const Frame& frame) {
    const XmlElement properties(xml, "wps:spPr");
    writeTransform(xml, {{}, {}, frame.width, frame.height, frame.rotation});
    {
        const XmlElement geometry(xml, "a:prstGeom", {{"prst", "rect"}});
        xml.leaf("a:avLst");
    }
    writeFill(xml, frame.fill, 1);
    writeOutlineLook(xml, frame.line, 1);
}

void writeText(Story& story, const Frame& frame) {
    const XmlElement box(story.xml, "wps:txbx");
    const XmlElement content(story.xml, "w:txbxContent");
    ++story.frameDepth;
    writeBlocks(story, frame.blocks);
    writeDisplacedNotes(story);
    --story.frameDepth;
}

void writeBody(XmlWriter& xml, const Frame& frame) {
    const XmlElement body(xml, "wps:bodyPr",
                          {{"rot", 0},
                           {"vert", nameOf(frame.direction)},
                           {"wrap", "square"},
                           {"lIns", drawingLength(frame.insetLeft)},
                           {"tIns", drawingLength(frame.insetTop)},
                           {"rIns", drawingLength(frame.insetRight)},
                           {"bIns", drawingLength(frame.insetBottom)},
                           {"anchor", "t"},
                           {"anchorCtr", 0}});
    xml.leaf(growsWithText(frame) ? "a:spAutoFit" : "a:noAutofit");
}

} // namespace

void writeFrame(Story& story, const Frame& frame) {
    const DrawingOutline outline{frame.width, frame.height, frame.rotation, "Text Box", {}, {}};
    writeFloatingDrawing(story, outline, frame.placement, DrawingDialect::Shape, [&](int) {
        const XmlElement graphic(story.xml, "a:graphic");
        const XmlElement data(story.xml, "a:graphicData", {{"uri", kShapeNamespace}});
        const XmlElement shape(story.xml, "wps:wsp");
        story.xml.leaf("wps:cNvSpPr", {{"txBox", 1}});
        writeProperties(story.xml, frame);
        writeText(story, frame);
        writeBody(story.xml, frame);
    });
}

} // namespace orvane::write::docx
