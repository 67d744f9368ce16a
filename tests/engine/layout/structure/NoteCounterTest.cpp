#include "layout/structure/NoteCounter.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::CountStart;
using document::NoteKind;
using document::NumberFormat;

struct Mark {
    std::size_t page = 0;
    std::string text;
    NoteKind kind = NoteKind::Footnote;
};

/// A draft whose text refers to notes with these marks. A section starts on each of `sectionPages`.
DocumentDraft counted(const std::vector<Mark>& marks, const std::vector<std::size_t>& sectionPages = {}) {
    DocumentDraft draft = tests::makeDraft(10);
    draft.sections.resize(1 + sectionPages.size());
    for (std::size_t page = 0; page < 10; ++page)
        draft.blocks.push_back(tests::makeBlock(tests::makeParagraph({tests::makeLine("text", 72, 100)}), page));
    for (std::size_t i = 0; i < sectionPages.size(); ++i)
        draft.sections[i + 1].firstBlock = sectionPages[i];
    for (const Mark& mark : marks) {
        draft.noteReferences.push_back({mark.page, {100, 200, 104, 206}, draft.notes.size(), mark.text});
        draft.notes.push_back({mark.kind, {}});
    }
    countNotes(draft);
    return draft;
}

/// The marks that stay as they are, "-" for those that a word processor counts.
std::string ownMarks(const DocumentDraft& draft) {
    std::string text;
    for (const DraftNoteReference& reference : draft.noteReferences)
        text += (text.empty() ? "" : " ") + (reference.isCounted ? "-" : reference.mark);
    return text;
}

TEST(NoteCounter, LeavesMarksToTheWordProcessorThatCountingGives) {
    const DocumentDraft draft = counted({{0, "1"}, {0, "2"}, {3, "3"}, {3, "i", NoteKind::Endnote}, {4, "4"}});
    EXPECT_EQ(ownMarks(draft), "- - - - -");
    EXPECT_EQ(draft.footnoteNumbering, document::NoteNumbering{});
    EXPECT_EQ(draft.endnoteNumbering.format, NumberFormat::LowerRoman);
}

TEST(NoteCounter, KeepsMarksOfTheAuthorsOwn) {
    EXPECT_EQ(ownMarks(counted({{0, "*"}, {0, "1"}, {1, "2"}, {2, "7"}})), "* - - 7");
    EXPECT_EQ(ownMarks(counted({{0, "*"}})), "*") << "one star is no way of counting";
}

TEST(NoteCounter, KnowsMarksThatCountOnEachPage) {
    const DocumentDraft draft = counted({{0, "1"}, {0, "2"}, {3, "1"}, {4, "1"}, {4, "2"}, {4, "3"}});
    EXPECT_EQ(draft.footnoteNumbering.count, CountStart::EachPage);
    EXPECT_EQ(ownMarks(draft), "- - - - - -");
    EXPECT_EQ(
        ownMarks(counted({{0, "1"}, {1, "1"}, {1, "*"}, {1, "i", NoteKind::Endnote}, {2, "ii", NoteKind::Endnote}})),
        "- - * - -");
}

TEST(NoteCounter, KnowsMarksThatCountInEachSection) {
    const DocumentDraft draft = counted({{0, "1"}, {1, "2"}, {3, "1"}, {4, "2"}, {4, "3"}}, {3});
    EXPECT_EQ(draft.footnoteNumbering.count, CountStart::EachSection);
    EXPECT_EQ(ownMarks(draft), "- - - - -");
}

TEST(NoteCounter, KnowsTheSignsThatNotesCountIn) {
    const struct {
        std::vector<Mark> marks;
        NumberFormat format;
    } rows[] = {
        {{{0, "a"}, {0, "b"}, {1, "c"}}, NumberFormat::LowerLetter},
        {{{0, "i"}, {0, "ii"}, {1, "iii"}}, NumberFormat::LowerRoman},
        {{{0, "*"}, {0, "\u2020"}, {1, "\u2021"}}, NumberFormat::Symbols},
        {{{0, "\u2217"}, {0, "\u2020"}}, NumberFormat::Symbols},
    };
    for (const auto& row : rows) {
        const DocumentDraft draft = counted(row.marks);
        EXPECT_EQ(draft.footnoteNumbering.format, row.format) << row.marks[0].text;
        EXPECT_EQ(ownMarks(draft).find_first_not_of("- "), std::string::npos) << ownMarks(draft);
    }
}

TEST(NoteCounter, CountsEndnotesInFiguresWhereTheyHaveThem) {
    const DocumentDraft draft = counted({{0, "1", NoteKind::Endnote}, {1, "2", NoteKind::Endnote}});
    EXPECT_EQ(draft.endnoteNumbering.format, NumberFormat::Decimal);
    EXPECT_EQ(ownMarks(draft), "- -");
}

} // namespace
} // namespace orvane::layout
