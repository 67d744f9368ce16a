#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "document/Document.h"
#include "document/ListLabels.h"
#include "write/StyleIndex.h"
#include "write/rtf/ColorTable.h"
#include "write/rtf/FontTable.h"
#include "write/rtf/RtfStream.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace orvane::write::rtf {

/// Fonts and colours stand before the text that uses them: a first pass over the text finds them.
enum class Pass { Survey, Writing };

/// What stands at the head of a file.
struct HeadTables {
    FontTable fonts;
    ColorTable colors;
};

/// What all parts of a file share during one pass.
struct RtfState {
    RtfState(const document::Document& source, const PictureStore& store, HeadTables& tables, Pass which,
             Diagnostics& notices)
        : document(source)
        , pictures(store)
        , diagnostics(notices)
        , styles(source)
        , head(tables)
        , fonts(tables.fonts)
        , colors(tables.colors)
        , pass(which)
        , labels(source)
        , isNoteWritten(source.notes.size())
        , isCommentWritten(source.comments.size()) {}

    /// The number by which paragraphs name a style.
    int numberOf(const document::Style& style) const {
        return document.styles.empty() ? 0 : static_cast<int>(&style - document.styles.data());
    }

    const document::Document& document;
    const PictureStore& pictures;
    Diagnostics& diagnostics;
    StyleIndex styles;
    HeadTables& head;
    FontTable& fonts;
    ColorTable& colors;
    Pass pass;
    document::ListLabels labels;
    std::set<std::string> bookmarks;    ///< names that are taken
    std::vector<bool> isNoteWritten;    ///< by index into Document::notes
    std::vector<bool> isCommentWritten; ///< by index into Document::comments
};

/// What a text may hold depends on where it stands.
enum class StoryKind { Body, RunningText, Note, Comment };

/// One text while it is written: the body, a header, a note.
struct Story {
    RtfState& state;
    RtfStream& rtf;
    StoryKind kind = StoryKind::Body;

    int tableDepth = 0;
    int flattenedTables = 0; ///< tables around that became paragraphs
    int frameDepth = 0;
    /// How the mark of the paragraph looks that has not ended yet; what ends it depends on what follows.
    std::optional<document::RunProperties> openMark{};
    const document::RunProperties* openBase = nullptr;
    // A text box cannot hold notes, comments and other floating objects: what stood in it follows it.
    std::vector<std::size_t> displacedNotes{};
    std::vector<std::size_t> displacedComments{};
    std::vector<const document::Block*> displacedFloats{};
};

} // namespace orvane::write::rtf
