#include "write/rtf/CommentRtf.h"

#include "write/CommentPlaces.h"
#include "write/Initials.h"
#include "write/IsoDate.h"
#include "write/rtf/BlockRtf.h"
#include "write/rtf/NoteRtf.h"

namespace orvane::write::rtf {
namespace {

using namespace document;

void writeNamed(RtfStream& rtf, const char* destination, const std::string& text) {
    const RtfDestination group(rtf, destination);
    rtf.text(text);
}

void writeComment(Story& around, const Comment& comment) {
    RtfStream& rtf = around.rtf;
    writeNamed(rtf, "atnid", initialsOf(comment.author));
    writeNamed(rtf, "atnauthor", comment.author);
    const RtfGroup run(rtf, "chatn");
    const RtfDestination annotation(rtf, "annotation");
    if (const auto time = dateTimeFromIso(comment.date)) {
        const RtfDestination date(rtf, "atndate");
        rtf.text(std::to_string(static_cast<std::int32_t>(packedDateTime(*time))));
    }
    Story story{around.state, rtf, StoryKind::Comment};
    writeBlocks(story, comment.blocks, {[&] { rtf.word("chatn"); }});
    writeDisplacedNotes(story);
    // The end of the group ends the last paragraph.
}

CommentPlace placeOf(const Story& story) {
    if (story.frameDepth > 0)
        return CommentPlace::TextBox;
    return story.kind == StoryKind::Body ? CommentPlace::Body : CommentPlace::Elsewhere;
}

} // namespace

void writeCommentReference(Story& story, const CommentReference& reference) {
    RtfState& state = story.state;
    if (!admitComment(reference, placeOf(story), state.isCommentWritten, story.displacedComments, state.diagnostics))
        return;
    writeComment(story, state.document.comments[reference.comment]);
}

} // namespace orvane::write::rtf
