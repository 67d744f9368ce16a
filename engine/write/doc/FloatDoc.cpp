#include "write/doc/FloatDoc.h"

#include "write/doc/BlockDoc.h"
#include "write/doc/CommentDoc.h"
#include "write/doc/NoteDoc.h"
#include "write/doc/ParagraphDoc.h"

#include <utility>

namespace orvane::write::doc {
namespace {

using namespace document;

void tellOnce(Story& story, bool& isTold, const Origin& origin, const char* message) {
    if (!std::exchange(isTold, true))
        story.state.diagnostics.add(DiagnosticKind::DrawingSimplified, origin.page, message, origin.box);
}

/// Shapes keep no links here.
void tellOfLink(Story& story, const Figure& figure) {
    const auto* picture = std::get_if<Picture>(&figure.content);
    if (picture && picture->link)
        story.state.diagnostics.add(DiagnosticKind::ContentLeftOut, figure.origin.page,
                                    "the link of a floating picture is left out", figure.origin.box);
}

void writeFigure(Story& story, const Figure& figure) {
    const auto* picture = std::get_if<Picture>(&figure.content);
    if (!picture) {
        tellOnce(story, story.state.toldOf.drawing, figure.origin, "drawings in notes and comments are left out");
        return;
    }
    if (figure.placement.wrapping == Wrapping::BehindText) {
        tellOnce(story, story.state.toldOf.background, figure.origin,
                 "pictures behind the text of notes and comments are left out");
        return;
    }
    Paragraph paragraph;
    const Style& style = story.state.styles.defaultStyle();
    paragraph.properties.hasWidowControl = style.paragraph.hasWidowControl;
    paragraph.markProperties = style.run;
    paragraph.inlines = {{*picture}};
    if (picture->link)
        paragraph.inlines = {{Link{*picture->link, paragraph.inlines}}};
    writeParagraph(story, paragraph, {});
}

/// Writes the text of a box, and tells its number. Comments and what floats stand beside the box.
int writeBox(Story& around, const Frame& frame) {
    DocState& state = around.state;
    TextBoxes& boxes = around.floats->boxes;
    boxes.starts.push_back(boxes.text.length());
    const auto number = static_cast<int>(boxes.starts.size());
    Story story{state, boxes.text, StoryKind::TextBox};
    writeBlocks(story, frame.blocks);
    writeDisplacedNotes(story);
    endParagraph(story, ParagraphEnd::Paragraph);
    for (const std::size_t comment : story.displacedComments)
        writeCommentReference(around, {comment});
    around.displacedFloats = std::move(story.displacedFloats);
    return number;
}

bool hasContent(const Story& story, const Block& block) {
    const auto* figure = std::get_if<Figure>(&block.value);
    if (!figure)
        return true;
    if (const auto* picture = std::get_if<Picture>(&figure->content))
        return story.state.pictures.has(*picture);
    return !std::get<Drawing>(figure->content).shapes.empty();
}

} // namespace

bool floatsInFile(const Story& story, const Block& block) {
    return story.floats != nullptr && hasContent(story, block);
}

void writeAnchor(Story& story, const Block& block) {
    FloatingObject object;
    object.place = story.text.length();
    object.figure = std::get_if<Figure>(&block.value);
    object.frame = std::get_if<Frame>(&block.value);
    if (object.figure)
        tellOfLink(story, *object.figure);
    story.text.add({&character::kFloatingObject, 1}, PropertyList().add(sprm::kCFSpec, 1).bytes());
    if (object.frame)
        object.box = writeBox(story, *object.frame);
    story.floats->objects.push_back(object);
    for (const Block* displaced : std::exchange(story.displacedFloats, {}))
        if (floatsInFile(story, *displaced))
            writeAnchor(story, *displaced);
}

void writeFloat(Story& story, const Block& block) {
    if (story.kind == StoryKind::TextBox)
        story.displacedFloats.push_back(&block);
    else if (const auto* figure = std::get_if<Figure>(&block.value))
        writeFigure(story, *figure);
    else
        writeBlocks(story, std::get<Frame>(block.value).blocks);
}

} // namespace orvane::write::doc
