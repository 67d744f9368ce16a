#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"
#include "write/StyleIndex.h"
#include "write/doc/CompoundFile.h"
#include "write/doc/DocFonts.h"
#include "write/doc/DocStyles.h"
#include "write/doc/FloatingObjects.h"
#include "write/doc/PictureDoc.h"
#include "write/doc/StoryText.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace orvane::write::doc {

/// A place with a name.
struct NamedPlace {
    std::u16string name;
    std::uint32_t place = 0;
};

/// The notes of one kind, in the order of their marks.
struct NoteTexts {
    struct Reference {
        std::uint32_t place = 0;
        bool isCounted = true; ///< not a mark of its own
    };
    std::vector<Reference> references;
    std::vector<std::uint32_t> starts; ///< in `text`
    StoryText text;
};

/// Comments in the order of their marks.
struct CommentTexts {
    struct Reference {
        std::uint32_t place = 0;
        std::u16string initials;
        std::size_t author = 0; ///< index into `authors`
        std::string date;       ///< ISO 8601
    };
    std::vector<Reference> references;
    std::vector<std::uint32_t> starts; ///< in `text`
    std::vector<std::u16string> authors;
    StoryText text;
};

/// What has been told of only once.
struct ToldOf {
    bool drawing = false;
    bool background = false;
};

/// What all parts of one file share while it is written.
struct DocState {
    DocState(const document::Document& source, const PictureStore& store, Diagnostics& notices)
        : document(source)
        , diagnostics(notices)
        , pictureStore(store)
        , styles(source)
        , styleNumbers(source, styles)
        , pictures(store, pictureNumbers, data)
        , isNoteWritten(source.notes.size())
        , isCommentWritten(source.comments.size()) {}

    const document::Document& document;
    Diagnostics& diagnostics;
    const PictureStore& pictureStore;
    StyleIndex styles;
    DocStyles styleNumbers;
    DocFonts fonts;
    CompoundStream data{u"Data"};
    PictureNumbers pictureNumbers;
    PictureData pictures;
    StoryText body;
    NoteTexts footnotes;
    NoteTexts endnotes;
    CommentTexts comments;
    FloatLayer bodyFloats;
    FloatLayer runningFloats;
    std::set<std::string> bookmarkNames;
    std::vector<NamedPlace> bookmarks;
    std::vector<bool> isNoteWritten;    ///< by index into Document::notes
    std::vector<bool> isCommentWritten; ///< by index into Document::comments
    ToldOf toldOf;
};

/// What a text may hold depends on where it stands.
enum class StoryKind { Body, RunningText, Note, Comment, TextBox };

/// The paragraph that has not ended yet; what ends it depends on what follows.
struct OpenParagraph {
    std::string properties; ///< with the style's number
    std::string mark;       ///< how the mark looks
};

/// One text while it is written: the body, a header, a note.
struct Story {
    DocState& state;
    StoryText& text;
    StoryKind kind = StoryKind::Body;
    FloatLayer* floats = nullptr; ///< what floats over the text; null where the format lets nothing float

    int tableDepth = 0;
    int flattenedTables = 0; ///< tables around that became paragraphs
    std::optional<OpenParagraph> open{};
    std::vector<std::size_t> displacedNotes{};
    std::vector<std::size_t> displacedComments{};          ///< of a text box, which cannot hold them
    std::vector<const document::Block*> displacedFloats{}; ///< likewise
};

} // namespace orvane::write::doc
