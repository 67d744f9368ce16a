#include "layout/structure/NoteFinder.h"

#include "layout/structure/NoteMark.h"
#include "layout/text/LineText.h"

#include "engine/layout/TextBuilder.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::NoteKind;
using document::VerticalPosition;
using tests::makeLine;
using tests::makePage;

/// A line in which what stands behind '^' up to the word's end is raised: "some text^1 goes on".
Line makeNotedLine(const std::string& text, double left, double baseline, double size = 10) {
    Line line = makeLine(text, left, baseline, {size});
    for (Word& word : line.words) {
        const std::size_t at = word.spans[0].text.find('^');
        if (at == std::string::npos)
            continue;
        Span raised = word.spans[0];
        raised.text.erase(0, at + 1);
        raised.look.verticalPosition = VerticalPosition::Superscript;
        raised.box.left = raised.box.right - 3;
        word.spans[0].text.erase(at);
        word.spans[0].box.right = raised.box.left;
        if (at == 0)
            word.spans.clear();
        word.spans.push_back(raised);
    }
    return line;
}

/// The short rule that word processors draw above notes.
Rule noteRule(double y, double left = 72) {
    Rule rule;
    rule.position = y;
    rule.from = left;
    rule.to = left + 144;
    return rule;
}

PageText pageWithText(int number, const std::vector<std::string>& lines) {
    PageText page = makePage(number);
    double baseline = 100;
    for (const std::string& line : lines)
        page.lines.push_back(makeNotedLine(line, 72, baseline += 14));
    return page;
}

/// Two columns of rows that read `text`, from that baseline on; the first row on the left has a mark.
PageText pageInColumns(const std::string& text, double right, double baseline, int rows) {
    PageText page = makePage(1);
    for (int i = 0; i < rows; ++i)
        for (const double left : {72.0, right})
            page.lines.push_back(makeNotedLine(text + (page.lines.empty() ? "^1" : ""), left, baseline + 14 * i));
    return page;
}

void addNotes(PageText& page, const std::vector<std::string>& notes) {
    page.rules.push_back(noteRule(700));
    double baseline = 700;
    for (const std::string& note : notes)
        page.lines.push_back(makeNotedLine(note, 72, baseline += 12, 8));
}

/// The notes as "kind mark@page: lines", one a row.
std::string notesOf(const FoundNotes& found) {
    std::string text;
    for (const FoundNote& note : found.notes) {
        text += fmt::format("{} {}@{}:", note.kind == NoteKind::Footnote ? "foot" : "end", note.mark,
                            note.referencePage + 1);
        for (const Line& line : note.content.lines)
            text += fmt::format(" {}", textOf(line));
        text += '\n';
    }
    return text;
}

FoundNotes take(std::vector<PageText>& pages) {
    DocumentContext context;
    context.bodyFontSize = 10;
    context.bodyLeading = 14;
    return takeNotes(pages, context, {});
}

TEST(NoteFinder, TakesWhatTheTextRefersTo) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1 and", "another^2 word"})};
    addNotes(pages[0], {"^1 The first note", "goes on", "^2 The second"});
    const FoundNotes found = take(pages);
    EXPECT_EQ(notesOf(found), "foot 1@1: 1 The first note goes on\nfoot 2@1: 2 The second\n");
    EXPECT_EQ(pages[0].lines.size(), 2u);
    EXPECT_TRUE(pages[0].rules[0].isUsed);
    EXPECT_EQ(found.notes[1].referenceBox, pages[0].lines[1].words[0].spans[1].box);
    EXPECT_DOUBLE_EQ(found.areas[0].top, 700);
}

TEST(NoteFinder, TakesLettersOnTheLineThatTheTextRefersTo) {
    std::vector<PageText> pages{pageWithText(1, {"some text^a and more^b here"})};
    addNotes(pages[0], {"a the first note, which goes on in", "a second line", "b the second note"});
    EXPECT_EQ(notesOf(take(pages)),
              "foot a@1: a the first note, which goes on in a second line\nfoot b@1: b the second note\n")
        << "the second a is a word";
}

TEST(NoteFinder, LeavesWhatNothingRefersTo) {
    struct Row {
        const char* text;
        const char* below;
        const char* why;
    };
    const Row kRows[] = {{"no mark in the text", "^1 Values of last year", "there is no reference"},
                         {"a word^2", "^1 Values of last year", "the reference is to another note"},
                         {"a word^1", "Signature of the applicant", "it has no mark"},
                         {"^1 starts a line", "^1 Values of last year", "that is the start of a note as well"}};
    for (const Row& row : kRows) {
        std::vector<PageText> pages{pageWithText(1, {row.text})};
        addNotes(pages[0], {row.below});
        EXPECT_EQ(notesOf(take(pages)), "") << row.why;
        EXPECT_EQ(pages[0].lines.size(), 2u) << row.why;
    }
}

TEST(NoteFinder, WantsSmallText) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"})};
    addNotes(pages[0], {"^1 A note"});
    pages[0].lines.back().fontSize = 14;
    EXPECT_EQ(notesOf(take(pages)), "");
}

TEST(NoteFinder, LeavesTheNotesOfATable) {
    for (const bool isSmall : {true, false}) {
        std::vector<PageText> pages{pageWithText(1, {"Left^a Right^b"})};
        addNotes(pages[0], {"^a Note a.", "^b Note b."});
        if (!isSmall)
            for (std::size_t i = 1; i < pages[0].lines.size(); ++i)
                pages[0].lines[i].fontSize = 10;
        pages[0].rules.push_back(noteRule(600));
        EXPECT_EQ(notesOf(take(pages)), "") << "the rules above and below the table end at the same places";
        EXPECT_EQ(pages[0].lines.size(), 3u);
    }
}

TEST(NoteFinder, TakesNumberedNotesBelowATableAtTheFoot) {
    std::vector<PageText> pages{pageWithText(1, {"Left^1"})};
    pages[0].rules = {noteRule(600), noteRule(720)};
    pages[0].lines.push_back(makeNotedLine("^1 A note", 72, 735, 8));
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 A note\n") << "the table fills the page down to its notes";
}

TEST(NoteFinder, LeavesSmallTextAboveLarger) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"})};
    addNotes(pages[0], {"^1 What a picture shows"});
    pages[0].lines.push_back(makeNotedLine("text of the column goes on below", 72, 740, 10));
    EXPECT_EQ(notesOf(take(pages)), "");
}

TEST(NoteFinder, KnowsNotesAtTheFootByTheirMarksWithoutARule) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1 and", "another^2 word"})};
    addNotes(pages[0], {"Source: a table", "^1 The first note", "goes on", "^2 The second"});
    pages[0].rules.clear();
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 The first note goes on\nfoot 2@1: 2 The second\n");
    ASSERT_EQ(pages[0].lines.size(), 3u);
    EXPECT_EQ(textOf(pages[0].lines[2]), "Source: a table");
}

TEST(NoteFinder, LeavesTextAtTheFootThatIsNoNote) {
    struct Row {
        const char* why;
        std::vector<Line> foot;
    };
    const Row kRows[] = {
        {"it is as large as the text, right below it", {makeNotedLine("^1 A note", 72, 128, 10)}},
        {"its mark is not raised, and it is as large as the text", {makeNotedLine("1 An item", 72, 712, 10)}},
        {"one mark stands before two of its lines",
         {makeNotedLine("^1 A note", 72, 712, 10), makeNotedLine("^1 Another", 72, 726, 10)}},
        {"not all that it says are notes",
         {makeNotedLine("^1 A note", 72, 712, 10), makeNotedLine("^2 Another", 72, 726, 10)}},
        {"nothing refers to it", {makeNotedLine("^2 A note", 72, 712, 8)}},
        {"text follows it", {makeNotedLine("^1 A note", 72, 712, 8), makeLine("more", 72, 730)}},
        {"it stands in columns", {makeNotedLine("^1 A cell", 72, 712, 8), makeNotedLine("another cell", 300, 712, 8)}}};
    for (const Row& row : kRows) {
        std::vector<PageText> pages{pageWithText(1, {"a word^1"})};
        pages[0].lines.insert(pages[0].lines.end(), row.foot.begin(), row.foot.end());
        EXPECT_EQ(notesOf(take(pages)), "") << row.why;
    }
}

TEST(NoteFinder, KnowsNotesAsLargeAsTheTextByTheSpaceAbove) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1 and", "another^2 word"})};
    pages[0].lines.push_back(makeNotedLine("^1 The first", 72, 712));
    pages[0].lines.push_back(makeNotedLine("of 20 lines", 72, 726));
    pages[0].lines.push_back(makeNotedLine("^2 The second", 72, 740));
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 The first of 20 lines\nfoot 2@1: 2 The second\n");
}

TEST(NoteFinder, KnowsAMarkThatStandsAlone) {
    std::vector<PageText> pages{pageWithText(1, {"some text"})};
    pages[0].lines.push_back(makeLine("1", 300, 200, {5}));
    addNotes(pages[0], {"^1 A note on the picture"});
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 A note on the picture\n");
    EXPECT_EQ(pages[0].lines[1].words[0].spans[0].look.verticalPosition, VerticalPosition::Superscript);
}

TEST(NoteFinder, PrefersARaisedMarkToOneThatStandsAlone) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"})};
    pages[0].lines.insert(pages[0].lines.begin(), makeLine("1", 300, 80, {5}));
    addNotes(pages[0], {"^1 A note"});
    const FoundNotes found = take(pages);
    ASSERT_EQ(found.notes.size(), 1u);
    EXPECT_EQ(found.notes[0].referenceBox, pages[0].lines[1].words[1].spans[1].box);
}

TEST(NoteFinder, GoesOnOnTheNextPage) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"}), pageWithText(2, {"more^2"})};
    addNotes(pages[0], {"^1 A long"});
    addNotes(pages[1], {"note ends", "^2 Another"});
    pages[1].fonts[0].family = "Caladea";
    const FoundNotes found = take(pages);
    EXPECT_EQ(notesOf(found), "foot 1@1: 1 A long note ends\nfoot 2@2: 2 Another\n");
    const PageText& content = found.notes[0].content;
    EXPECT_GT(content.lines[1].baseline, content.lines[0].baseline);
    EXPECT_EQ(content.fonts.at(content.lines[1].words[0].spans[0].look.font).family, "Caladea");
}

TEST(NoteFinder, DoesNotGoOnBelowAnotherRule) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"}), pageWithText(2, {"more"})};
    addNotes(pages[0], {"^1 A note"});
    addNotes(pages[1], {"text in a shape"});
    pages[1].rules[0].to -= 80;
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 A note\n");
    EXPECT_EQ(pages[1].lines.size(), 2u);
}

TEST(NoteFinder, PutsAMarkThatStandsAsALineToItsText) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"})};
    addNotes(pages[0], {});
    pages[0].lines.push_back(makeLine("1", 72, 709, {.size = 5}));
    pages[0].lines.push_back(makeLine("Set apart", 90, 712, {.size = 8}));
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 Set apart\n");
}

TEST(NoteFinder, TakesNotesAsLargeAsTheTextWhoseMarksStandApart) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"})};
    addNotes(pages[0], {});
    pages[0].lines.push_back(makeLine("1", 72, 709, {.size = 5}));
    pages[0].lines.push_back(makeLine("Set apart", 90, 712, {.size = 10}));
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 Set apart\n") << "the mark does not tell the size of the note";
}

TEST(NoteFinder, TakesEndnotesWhoseMarksStandApart) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1"}), makePage(2)};
    pages[1].lines = {makeLine("1", 72, 77, {.size = 5}), makeLine("At the end", 90, 80)};
    EXPECT_EQ(notesOf(take(pages)), "end 1@1: 1 At the end\n") << "no mark refers to itself";
}

TEST(NoteFinder, TakesEndnotesWithoutARule) {
    std::vector<PageText> pages{pageWithText(1, {"a word^i and", "another^ii word"}), makePage(2)};
    pages[1].lines = {makeNotedLine("^i First", 72, 80), makeNotedLine("^ii Second", 72, 94)};
    EXPECT_EQ(notesOf(take(pages)), "end i@1: i First\nend ii@1: ii Second\n");
    EXPECT_TRUE(pages[1].lines.empty());
}

TEST(NoteFinder, KeepsFootnotesAndEndnotesOfOnePageApart) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1 and", "another^i word"})};
    addNotes(pages[0], {"^1 Foot"});
    pages[0].rules.push_back(noteRule(400));
    pages[0].lines.push_back(makeNotedLine("^i End", 72, 412, 8));
    EXPECT_EQ(notesOf(take(pages)), "end i@1: i End\nfoot 1@1: 1 Foot\n");
}

TEST(NoteFinder, LeavesTheOtherColumnAlone) {
    std::vector<PageText> pages{makePage(1)};
    for (int i = 0; i < 40; ++i) {
        if (i < 36)
            pages[0].lines.push_back(makeLine("the left column has text enough", 72, 200 + 14 * i));
        pages[0].lines.push_back(makeLine("the right column is set as well", 310, 200 + 14 * i));
    }
    pages[0].lines[0] = makeNotedLine("the left column has text^1", 72, 200);
    addNotes(pages[0], {"^1 A note of the left column"});
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 A note of the left column\n");
    EXPECT_EQ(pages[0].lines.size(), 76u);
}

TEST(NoteFinder, LeadsAcrossTheColumnsOfATableAbove) {
    std::vector<PageText> pages{pageInColumns("what is in a cell of this one", 330, 599, 8)};
    // As large as the text, so that the rule alone tells the notes.
    addNotes(pages[0], {});
    const std::string note = "A note that is as wide as the columns of the table above it, of which there are two";
    pages[0].lines.push_back(makeNotedLine("^1 " + note, 72, 712));
    pages[0].lines.push_back(makeNotedLine("and ends soon", 72, 726));
    ASSERT_GT(pages[0].lines[16].box.centerX(), pages[0].lines[2].box.right) << "it is not of the first column";
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 " + note + " and ends soon\n");
}

TEST(NoteFinder, GoesOnInTheNextColumn) {
    std::vector<PageText> pages{pageInColumns("a column that has text enough", 310, 190, 36)};
    addNotes(pages[0], {"^1 A long note of the left"});
    pages[0].rules.push_back(noteRule(700, 310));
    pages[0].lines.push_back(makeLine("ends in the right", 310, 712, {.size = 8}));
    const FoundNotes found = take(pages);
    EXPECT_EQ(notesOf(found), "foot 1@1: 1 A long note of the left ends in the right\n");
    EXPECT_DOUBLE_EQ(found.notes[0].content.lines.at(1).box.left, 72) << "below its beginning";
}

TEST(NoteFinder, PartsAMarkFromEastAsianText) {
    std::vector<PageText> pages{pageWithText(1, {"a word^1) and"})};
    addNotes(pages[0], {"1)\uC190\uD574 note"});
    const FoundNotes found = take(pages);
    EXPECT_EQ(notesOf(found), "foot 1)@1: 1)\uC190\uD574 note\n");
    ASSERT_EQ(found.notes.size(), 1u);
    EXPECT_EQ(textOf(found.notes[0].content.lines[0].words[0]), "1)") << "a word of its own";
}

/// Two notes below the page's text, each a row of two cells with its mark beside the second line.
PageText pageWithTablesInNotes(const std::string& text) {
    PageText page = pageWithText(1, {text});
    page.rules.push_back(noteRule(700));
    double baseline = 700;
    for (const char* mark : {"^1", "^2"}) {
        baseline += 12;
        page.lines.push_back(makeNotedLine("A name", 90, baseline, 8));
        page.lines.push_back(makeNotedLine("a long title", 250, baseline, 8));
        baseline += 12;
        page.lines.push_back(makeNotedLine(mark, 72, baseline, 8));
        page.lines.push_back(makeNotedLine("in two lines", 250, baseline, 8));
    }
    return page;
}

TEST(NoteFinder, TakesNotesThatAreTables) {
    std::vector<PageText> pages = {pageWithTablesInNotes("Some text^1 and more^2 of it")};
    EXPECT_EQ(notesOf(take(pages)), "foot 1@1: 1 A name a long title in two lines\n"
                                    "foot 2@1: 2 A name a long title in two lines\n");
}

TEST(NoteFinder, LeavesRowsOfWhichNotAllAreNotes) {
    std::vector<PageText> pages = {pageWithTablesInNotes("Some text^1 and more of it")};
    EXPECT_EQ(notesOf(take(pages)), "");
    EXPECT_EQ(pages[0].lines.size(), 9u);
}

TEST(NoteFinder, TakesNotesMarkedBySignsOfMathematics) {
    std::vector<PageText> pages = {pageWithText(1, {"A title with thanks^∗", "and text that goes on"})};
    addNotes(pages[0], {"^∗ We thank everybody"});
    EXPECT_EQ(notesOf(take(pages)), "foot ∗@1: ∗ We thank everybody\n");
}

TEST(NoteMark, KnowsMarks) {
    for (const char* mark : {"1", "12", "iv", "b", "*", "**", "∗", "†", "‖", "(3)", "4.", "٤"})
        EXPECT_TRUE(isNoteMark(mark)) << mark;
    for (const char* mark : {"", "th", "2004", "1a", "+", "()"})
        EXPECT_FALSE(isNoteMark(mark)) << mark;
}

} // namespace
} // namespace orvane::layout
