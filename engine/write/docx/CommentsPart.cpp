#include "write/docx/CommentsPart.h"

#include "write/CommentPlaces.h"
#include "write/Initials.h"
#include "write/IsoDate.h"
#include "write/docx/BlockXml.h"
#include "write/docx/NotesPart.h"
#include "write/docx/XmlPart.h"

#include <algorithm>

namespace orvane::write::docx {
namespace {

using namespace document;

void writeComment(Story& story, const Comment& comment, std::size_t index) {
    const XmlElement element(story.xml, "w:comment", {{"w:id", index}, {"w:author", comment.author}});
    if (isIsoDateTime(comment.date))
        story.xml.attribute({"w:date", comment.date});
    if (const std::string initials = initialsOf(comment.author); !initials.empty())
        story.xml.attribute({"w:initials", initials});
    writeBlocks(story, comment.blocks);
    writeDisplacedNotes(story);
}

CommentPlace placeOf(const Story& story) {
    if (story.frameDepth > 0)
        return CommentPlace::TextBox;
    return story.kind == StoryKind::Body ? CommentPlace::Body : CommentPlace::Elsewhere;
}

} // namespace

void writeCommentReference(Story& story, const CommentReference& reference) {
    DocumentState& state = story.state;
    if (!admitComment(reference, placeOf(story), state.isCommentWritten, story.displacedComments, state.diagnostics))
        return;
    const XmlElement run(story.xml, "w:r");
    story.xml.leaf("w:commentReference", {{"w:id", reference.comment}});
}

void addCommentsPart(DocumentState& state, Relationships& relationships) {
    const auto& isWritten = state.isCommentWritten;
    if (std::find(isWritten.begin(), isWritten.end(), true) == isWritten.end())
        return;
    XmlPart part("word/comments.xml", "comments");
    Story story{state, part.xml(), part.relationships(), StoryKind::Comment};
    startRoot(part.xml(), "w:comments");
    for (std::size_t i = 0; i < isWritten.size(); ++i)
        if (isWritten[i])
            writeComment(story, state.document.comments[i], i);
    part.xml().end();
    part.addTo(state.package);
    relationships.add("comments", "comments.xml");
}

} // namespace orvane::write::docx
