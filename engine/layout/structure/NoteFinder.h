#pragma once

#include "document/Document.h"
#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/text/PageText.h"

#include <cstddef>
#include <string>
#include <vector>

namespace orvane::layout {

/// A footnote or endnote that was taken out of its page.
struct FoundNote {
    document::NoteKind kind = document::NoteKind::Footnote;
    std::string mark;              ///< as the text shows it: "1", "iv", "*"
    std::size_t referencePage = 0; ///< index of the page whose text refers to it
    Rect referenceBox;             ///< of the span there
    PageText content;              ///< its lines; the first word is the mark
    double left = 0;               ///< where its lines begin, on the page or in the column where it starts
    std::size_t page = 0;          ///< index of the page where it starts
};

struct FoundNotes {
    std::vector<FoundNote> notes; ///< in the order of their references, as far as pages tell
    std::vector<Rect> areas; ///< for each page, where its notes stood, with the rule above them; empty without notes
};

/// Takes the notes out of `pages`: text below a short rule, small text at the foot of a page, or text on pages of its
/// own, that starts with marks which the text refers to in raised characters, or in small ones that stand alone. What
/// nothing refers to stays in the text.
FoundNotes takeNotes(std::vector<PageText>& pages, const DocumentContext& context, const LayoutParameters& parameters);

} // namespace orvane::layout
