#include "layout/structure/NoteMaker.h"

#include "layout/page/PageLayouter.h"
#include "layout/structure/DraftBuilder.h"
#include "layout/structure/DraftWalk.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

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
        draft.noteReferences.push_back({note.referencePage, note.referenceBox, draft.notes.size(), note.mark});
        draft.notes.push_back(std::move(made));
    }
    draft.noteAreas = std::move(found.areas);
}

} // namespace orvane::layout
