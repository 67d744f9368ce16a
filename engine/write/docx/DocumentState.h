#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "base/XmlWriter.h"
#include "document/Document.h"
#include "write/StyleIndex.h"
#include "write/docx/MediaParts.h"
#include "write/docx/Package.h"
#include "write/docx/RunningTextParts.h"

#include <set>
#include <string>
#include <vector>

namespace orvane::write::docx {

/// Where a note's text goes.
enum class NoteHome { Nowhere, NotesPart, Text };

/// What has become known of one note while the text was written.
struct NoteUse {
    NoteHome home = NoteHome::Nowhere; ///< until a reference leads to it
    std::string customMark;            ///< of that reference; empty for automatic numbering
};

/// What all parts of one document share while it is written.
struct DocumentState {
    DocumentState(const document::Document& source, const PictureStore& pictures, Diagnostics& notices)
        : document(source)
        , diagnostics(notices)
        , styles(source)
        , media(pictures, package)
        , runningTexts(source)
        , noteUses(source.notes.size())
        , isCommentWritten(source.comments.size()) {}

    const document::Document& document;
    Diagnostics& diagnostics;
    Package package;
    StyleIndex styles;
    MediaParts media;
    RunningTextParts runningTexts;
    std::set<std::string, std::less<>> fontFamilies; ///< that runs and styles use
    std::set<std::string> bookmarks;                 ///< names that are taken
    std::vector<NoteUse> noteUses;                   ///< by index into Document::notes
    std::vector<bool> isCommentWritten;              ///< by index into Document::comments
    int nextControlId = 1;
};

/// What a part may hold depends on where it stands.
enum class StoryKind { Body, RunningText, Note, Comment };

/// One part's text while it is written.
struct Story {
    DocumentState& state;
    XmlWriter& xml;
    Relationships& relationships;
    StoryKind kind = StoryKind::Body;

    int nextDrawingId = 1;
    int tableDepth = 0;
    int flattenedTables = 0; ///< tables around that became paragraphs
    int frameDepth = 0;
    // A text box cannot hold notes, comments and other floating objects: what stood in it follows it.
    std::vector<std::size_t> displacedNotes{};
    std::vector<std::size_t> displacedComments{};
    std::vector<const document::Block*> displacedFloats{};
};

} // namespace orvane::write::docx
