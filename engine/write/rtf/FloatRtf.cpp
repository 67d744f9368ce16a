#include "write/rtf/FloatRtf.h"

#include "write/rtf/CommentRtf.h"
#include "write/rtf/FrameRtf.h"
#include "write/rtf/PictureRtf.h"
#include "write/rtf/ShapeRtf.h"

#include <utility>

namespace orvane::write::rtf {
namespace {

using namespace document;

void writeFigure(Story& story, const Figure& figure) {
    if (const auto* picture = std::get_if<Picture>(&figure.content))
        writeFloatingPicture(story, *picture, figure.placement);
    else
        writeFloatingShapes(story, std::get<Drawing>(figure.content), figure.placement);
}

} // namespace

void writeFloat(Story& story, const Block& block) {
    // A text box cannot hold floating objects: they are anchored beside it.
    if (story.frameDepth > 0) {
        story.displacedFloats.push_back(&block);
        return;
    }
    if (const auto* figure = std::get_if<Figure>(&block.value)) {
        writeFigure(story, *figure);
        return;
    }
    writeFrame(story, std::get<Frame>(block.value));
    for (const std::size_t comment : std::exchange(story.displacedComments, {}))
        writeCommentReference(story, {comment});
    for (const Block* displaced : std::exchange(story.displacedFloats, {}))
        writeFloat(story, *displaced);
}

} // namespace orvane::write::rtf
