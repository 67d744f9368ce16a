#include "write/doc/CommentDoc.h"

#include "write/CommentPlaces.h"
#include "write/Initials.h"
#include "write/IsoDate.h"
#include "write/doc/BlockDoc.h"
#include "write/doc/NoteDoc.h"
#include "write/doc/ParagraphDoc.h"

#include <algorithm>

namespace orvane::write::doc {
namespace {

using namespace document;

constexpr std::size_t kInitialsLength = 9;
constexpr std::size_t kLongestAuthor = 255;
constexpr std::int64_t kNoRange = 0xFFFFFFFF;

void addMark(StoryText& text) {
    text.add({&character::kComment, 1}, PropertyList().add(sprm::kCFSpec, 1).bytes());
}

std::size_t authorIndex(CommentTexts& comments, const std::u16string& author) {
    const auto found = std::find(comments.authors.begin(), comments.authors.end(), author);
    const auto index = static_cast<std::size_t>(found - comments.authors.begin());
    if (index == comments.authors.size())
        comments.authors.push_back(author);
    return index;
}

void writeComment(DocState& state, const Comment& comment, std::uint32_t place) {
    CommentTexts& comments = state.comments;
    const std::u16string author = utf16FromUtf8(comment.author).substr(0, kLongestAuthor);
    comments.references.push_back({place, utf16FromUtf8(initialsOf(comment.author)).substr(0, kInitialsLength),
                                   authorIndex(comments, author), comment.date});
    comments.starts.push_back(comments.text.length());
    Story story{state, comments.text, StoryKind::Comment};
    writeBlocks(story, comment.blocks, {[&] { addMark(story.text); }});
    writeDisplacedNotes(story);
    endParagraph(story, ParagraphEnd::Paragraph);
}

/// When each comment was made. Source: [MS-DOC] 2.9.7 (AtrdExtra), 2.9.6 (ATRDPost10).
std::string detailsOf(const CommentTexts& comments) {
    constexpr int kPlaceInThread = 14;
    Bytes details;
    for (const CommentTexts::Reference& reference : comments.references) {
        const auto time = dateTimeFromIso(reference.date);
        details.u32(time ? packedDateTime(*time) : 0).zeros(kPlaceInThread);
    }
    return details.str();
}

CommentPlace placeOf(const Story& story) {
    if (story.kind == StoryKind::TextBox)
        return CommentPlace::TextBox;
    return story.kind == StoryKind::Body ? CommentPlace::Body : CommentPlace::Elsewhere;
}

} // namespace

void writeCommentReference(Story& story, const CommentReference& reference) {
    DocState& state = story.state;
    if (!admitComment(reference, placeOf(story), state.isCommentWritten, story.displacedComments, state.diagnostics))
        return;
    const std::uint32_t place = story.text.length();
    addMark(story.text);
    writeComment(state, state.document.comments[reference.comment], place);
}

CommentTables commentTables(const CommentTexts& comments, std::uint32_t bodyLength) {
    if (comments.references.empty())
        return {};
    Bytes places;
    Bytes entries;
    for (const CommentTexts::Reference& reference : comments.references) {
        places.u32(reference.place);
        std::u16string initials = reference.initials;
        entries.u16(static_cast<std::int64_t>(initials.size()));
        initials.resize(kInitialsLength);
        entries.characters(initials).u16(static_cast<std::int64_t>(reference.author)).zeros(4).u32(kNoRange);
    }
    places.u32(bodyLength);
    Bytes texts;
    for (const std::uint32_t start : comments.starts)
        texts.u32(start);
    // The last paragraph mark of the text belongs to no comment.
    texts.u32(comments.text.length() - 1).u32(comments.text.length());
    Bytes authors;
    for (const std::u16string& author : comments.authors)
        authors.u16(static_cast<std::int64_t>(author.size())).characters(author);
    return {places.str() + entries.str(), texts.str(), authors.str(), detailsOf(comments)};
}

} // namespace orvane::write::doc
