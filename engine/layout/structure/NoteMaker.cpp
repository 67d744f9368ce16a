#include "layout/structure/NoteMaker.h"

#include "layout/page/PageLayouter.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/structure/DraftWalk.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

using document::NoteCount;
using document::NoteKind;

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
    explicit MarkCounter(NoteCount footnotes)
        : m_footnotes(footnotes) {}

    bool isCounted(const FoundNote& note) {
        if (m_footnotes == NoteCount::EachPage && note.referencePage != m_page)
            m_footnote = 1;
        m_page = note.referencePage;
        int& next = note.kind == NoteKind::Footnote ? m_footnote : m_endnote;
        const bool isFigure = note.mark == fmt::format("{}", next);
        const bool isNumeral = note.kind == NoteKind::Endnote && note.mark == romanNumeral(next);
        if (!isFigure && !isNumeral)
            return false;
        ++next;
        return true;
    }

private:
    NoteCount m_footnotes;
    std::size_t m_page = 0;
    int m_footnote = 1;
    int m_endnote = 1;
};

std::size_t countedWith(NoteCount count, const std::vector<FoundNote>& notes) {
    MarkCounter counter(count);
    return static_cast<std::size_t>(std::count_if(
        notes.begin(), notes.end(), [&counter](const FoundNote& note) { return counter.isCounted(note); }));
}

/// The way of counting that gives more of the marks.
NoteCount findCount(const std::vector<FoundNote>& notes) {
    return countedWith(NoteCount::EachPage, notes) > countedWith(NoteCount::Continuous, notes) ? NoteCount::EachPage
                                                                                               : NoteCount::Continuous;
}

/// The column at whose foot the note stands; nothing where it reaches over several, or the page has but one.
std::optional<ColumnSpan> columnUnder(const Rect& note, const PageLayout& page, double tolerance) {
    for (auto band = page.bands.rbegin(); band != page.bands.rend(); ++band) {
        if (band->columns.size() < 2)
            continue;
        for (const ColumnSpan& column : band->columns)
            if (note.left >= column.left - tolerance && note.right <= column.right + tolerance)
                return column;
    }
    return std::nullopt;
}

bool hasColumns(const PageLayout& page) {
    return std::any_of(page.bands.begin(), page.bands.end(), [](const Band& band) { return band.columns.size() > 1; });
}

/// Word processors set notes in columns too: their indents count from the edge of that column. A note that reaches over
/// several runs on from one into the other, so that its lines end at the edges of them all.
void setColumn(DraftNote& note, const PageLayout& page, double tolerance) {
    Rect box;
    for (const DraftBlock& block : note.blocks)
        box = box.united(block.box);
    const std::optional<ColumnSpan> column = columnUnder(box, page, tolerance);
    if (!column && !hasColumns(page))
        return;
    forEachParagraph(note.blocks, [&column](DraftParagraph& paragraph) {
        for (DraftPiece& piece : paragraph.pieces)
            piece.column = column.value_or(ColumnSpan{piece.column.left, piece.text.box.right});
    });
}

} // namespace

void makeNotes(DocumentDraft& draft, FoundNotes found, const DocumentContext& context,
               const LayoutParameters& parameters, Diagnostics& diagnostics) {
    draft.footnoteCount = findCount(found.notes);
    MarkCounter counter(draft.footnoteCount);
    for (FoundNote& note : found.notes) {
        DraftNote made;
        made.kind = note.kind;
        made.blocks = addPage(draft, layoutPage(std::move(note.content), context, parameters, diagnostics));
        setColumn(made, draft.pages[note.referencePage], parameters.notes.edgeTolerance);
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
