#include "layout/structure/NoteMaker.h"

#include "layout/page/PageLayouter.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/structure/DraftWalk.h"

#include <fmt/format.h>

#include <utility>

namespace orvane::layout {
namespace {

std::string romanNumeral(int number) {
    static constexpr std::pair<int, const char*> kParts[] = {{100, "c"}, {90, "xc"}, {50, "l"}, {40, "xl"}, {10, "x"},
                                                             {9, "ix"},  {5, "v"},   {4, "iv"}, {1, "i"}};
    std::string text;
    for (const auto& [value, letters] : kParts)
        for (; number >= value; number -= value)
            text += letters;
    return text;
}

/// Counts notes as word processors do: footnotes in figures, endnotes in small Roman numerals.
class MarkCounter {
public:
    bool isCounted(const FoundNote& note) {
        int& next = note.kind == document::NoteKind::Footnote ? m_footnote : m_endnote;
        const bool isFigure = note.mark == fmt::format("{}", next);
        const bool isNumeral = note.kind == document::NoteKind::Endnote && note.mark == romanNumeral(next);
        if (!isFigure && !isNumeral)
            return false;
        ++next;
        return true;
    }

private:
    int m_footnote = 1;
    int m_endnote = 1;
};

} // namespace

void makeNotes(DocumentDraft& draft, FoundNotes found, const DocumentContext& context,
               const LayoutParameters& parameters, Diagnostics& diagnostics) {
    MarkCounter counter;
    for (FoundNote& note : found.notes) {
        DraftNote made;
        made.kind = note.kind;
        made.blocks = addPage(draft, layoutPage(std::move(note.content), context, parameters, diagnostics));
        bool isFirst = true;
        forEachParagraph(made.blocks, [&isFirst](DraftParagraph& paragraph) {
            paragraph.role = ParagraphRole::NoteText;
            // The writers put the mark in front themselves.
            paragraph.labelWords = std::exchange(isFirst, false) ? 1 : 0;
        });
        DraftNoteReference reference{note.referencePage, note.referenceBox, draft.notes.size(), {}};
        if (!counter.isCounted(note))
            reference.customMark = note.mark;
        draft.noteReferences.push_back(std::move(reference));
        draft.notes.push_back(std::move(made));
    }
    draft.noteAreas = std::move(found.areas);
}

} // namespace orvane::layout
