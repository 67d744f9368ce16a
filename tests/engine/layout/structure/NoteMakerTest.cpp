#include "layout/structure/NoteMaker.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::NoteKind;

TEST(NoteMaker, MeasuresNotesFromTheColumnAtWhoseFootTheyStand) {
    const struct {
        double left;
        ColumnSpan expected;
        const char* why;
    } cases[] = {{72, {72, 280}, "the first column"}, {310, {310, 520}, "the second one"}};
    for (const auto& row : cases) {
        FoundNotes found;
        found.areas.resize(1);
        FoundNote note{NoteKind::Footnote, "1", 0, {}, tests::makePage(1)};
        note.content.lines = {tests::makeLine("1 a short note", row.left, 700)};
        found.notes.push_back(std::move(note));
        DocumentDraft draft = tests::makeDraft(1);
        draft.pages[0].bands = {{50, 650, {{72, 280}, {310, 520}}, false}};
        Diagnostics diagnostics;
        makeNotes(draft, std::move(found), {}, {}, diagnostics);
        const ColumnSpan column = draft.notes.at(0).blocks.at(0).paragraph()->pieces.at(0).column;
        EXPECT_EQ(column.left, row.expected.left) << row.why;
        EXPECT_EQ(column.right, row.expected.right) << row.why;
    }
}

TEST(NoteMaker, LetsNotesOverSeveralColumnsFillTheOneTheyAreSetIn) {
    FoundNotes found;
    found.areas.resize(1);
    FoundNote note{NoteKind::Footnote, "1", 0, {}, tests::makePage(1)};
    note.content.lines = {tests::makeLine("1 a note that ends in the first column", 72, 700),
                          tests::makeLine("2 and one in the second column", 310, 700)};
    found.notes.push_back(std::move(note));
    DocumentDraft draft = tests::makeDraft(1);
    draft.pages[0].bands = {{50, 650, {{72, 280}, {310, 520}}, false}};
    Diagnostics diagnostics;
    makeNotes(draft, std::move(found), {}, {}, diagnostics);
    for (const DraftBlock& block : draft.notes.at(0).blocks) {
        const DraftPiece& piece = block.paragraph()->pieces.at(0);
        EXPECT_EQ(piece.column.right, piece.text.box.right) << "the page's edge is not theirs";
    }
}

} // namespace
} // namespace orvane::layout
