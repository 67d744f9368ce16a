#include "layout/structure/NoteKinds.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::NoteKind;

struct Row {
    const char* mark;
    std::size_t referencePage;
    std::size_t page;
};

/// "f" for each footnote, "e" for each endnote.
std::string kindsOf(const std::vector<Row>& rows, std::size_t lastTextPage) {
    std::vector<FoundNote> notes;
    for (const Row& row : rows) {
        FoundNote note;
        note.mark = row.mark;
        note.referencePage = row.referencePage;
        note.page = row.page;
        notes.push_back(std::move(note));
    }
    settleNoteKinds(notes, lastTextPage);
    std::string kinds;
    for (const FoundNote& note : notes)
        kinds += note.kind == NoteKind::Endnote ? 'e' : 'f';
    return kinds;
}

TEST(NoteKinds, TakesNotesBehindTheirPagesForEndnotes) {
    EXPECT_EQ(kindsOf({{"1", 0, 0}, {"2", 1, 4}, {"3", 3, 4}}, 4), "fee");
}

TEST(NoteKinds, TakesNumeralsThatEndTheTextForEndnotes) {
    EXPECT_EQ(kindsOf({{"1", 0, 0}, {"i", 2, 2}, {"ii", 2, 2}}, 2), "fee");
}

TEST(NoteKinds, TakesNumeralsAtTheFeetOfPagesForFootnotes) {
    EXPECT_EQ(kindsOf({{"i", 0, 0}, {"ii", 1, 1}, {"iii", 2, 2}}, 2), "fff");
    EXPECT_EQ(kindsOf({{"i", 0, 2}, {"ii", 1, 2}, {"iii", 2, 2}}, 3), "eee") << "they were collected";
}

TEST(NoteKinds, CountsLettersAmongLetters) {
    EXPECT_EQ(kindsOf({{"a", 0, 0}, {"b", 0, 0}, {"c", 0, 0}}, 0), "fff");
}

} // namespace
} // namespace orvane::layout
