#include "layout/paragraphs/ParagraphBuilder.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::Alignment;
using tests::artColumn;
using tests::linesFromArt;
using tests::makeLine;
using tests::textsOf;

/// The blank of drawn lines is as wide as any character.
const std::vector<pdf::Font> kFonts = [] {
    pdf::Font font;
    font.spaceWidth = 0.5;
    return std::vector{font};
}();
const ParagraphContext kContext{.bodyFontSize = 10, .bodyLeading = 12, .fonts = kFonts, .obstacles = {}};

std::vector<ParagraphDraft> build(const std::vector<std::string>& art, int columnWidth, double leading = 12) {
    return buildParagraphs(linesFromArt(art, leading), artColumn(columnWidth), kContext, {});
}

TEST(ParagraphBuilder, JoinsTheLinesOfAParagraph) {
    struct Row {
        std::vector<std::string> art; ///< in a column of 30 characters
        std::vector<std::string> expected;
        const char* why;
    };
    const Row rows[] = {
        {{"The quick brown fox jumps over", "the lazy dog and runs away in", "to the woods."},
         {"The quick brown fox jumps over the lazy dog and runs away in to the woods."},
         "no line had room for the next word"},
        {{"The quick brown fox jumps over", "the dog.", "Another one starts here and it", "goes on."},
         {"The quick brown fox jumps over the dog.", "Another one starts here and it goes on."},
         "\"Another\" would have fitted behind \"dog.\""},
        {{"The quick brown fox jumps over", "the lazy dog and runs away in.", "", "Another one starts here and it",
          "goes on."},
         {"The quick brown fox jumps over the lazy dog and runs away in.", "Another one starts here and it goes on."},
         "space between paragraphs, though the last line is full"},
        {{"   The quick brown fox jumps o", "the lazy dog and runs away in.", "   Another one starts here and",
          "goes on."},
         {"The quick brown fox jumps o the lazy dog and runs away in.", "Another one starts here and goes on."},
         "first lines are indented, no space between"},
        {{"Miller & Sons", "12 Long Street", "Springfield"},
         {"Miller & Sons", "12 Long Street", "Springfield"},
         "an address: every next word would have fitted"},
        {{"Shall I compare thee", "to a summer's day?", "Thou art more lovely"},
         {"Shall I compare thee", "to a summer's day?", "Thou art more lovely"},
         "verse"},
        {{"  The quick brown fox jumps", "over the lazy dog and runs in", "to the woods, but not so fast",
          "as before."},
         {"The quick brown fox jumps over the lazy dog and runs in to the woods, but not so fast as before."},
         "a first line with equal room on both sides is not centred above lines that begin at the edge"},
        {{"1. The first item is long and", "   goes on below its text", "2. The second item"},
         {"1. The first item is long and goes on below its text", "2. The second item"},
         "numbered items with a hanging indent"},
        {{"\xE2\x80\xA2 First item of the list which", "  takes two lines and fills up", "\xE2\x80\xA2 Second item"},
         {"\xE2\x80\xA2 First item of the list which takes two lines and fills up", "\xE2\x80\xA2 Second item"},
         "bullets start a paragraph though the line above is full"},
        {{"He was born in the summer of", "1999. After that nothing came", "to pass for a long time."},
         {"He was born in the summer of 1999. After that nothing came to pass for a long time."},
         "a number by chance at the start of a line is no label"},
        {{"Doe, J.: The long title of some", "     book that is worth reading", "     and more of it.",
          "Roe, R.: Another book and its", "     title."},
         {"Doe, J.: The long title of some book that is worth reading and more of it.",
          "Roe, R.: Another book and its title."},
         "a bibliography hangs below its first lines"},
        {{"Deadline:\tThe day on which the", "          work ends."},
         {"Deadline:\tThe day on which the work ends."},
         "what is said of a term hangs at its tabulator"},
        {{"The quick brown fox jumps over", "       the lazy dog."},
         {"The quick brown fox jumps over the lazy dog."},
         "a sentence goes on behind a full line, however the next one stands"},
        {{"_______________ (Ada Lovelace)", "Signature of the applicant"},
         {"_______________ (Ada Lovelace)", "Signature of the applicant"},
         "a line to sign on with the name behind it"},
        {{"______________________________", "Signature of the applicant"},
         {"______________________________", "Signature of the applicant"},
         "a line to write on"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(textsOf(build(row.art, 31)), row.expected) << row.why;
}

TEST(ParagraphBuilder, PartsNotesByTheirRaisedMarks) {
    const auto build = [](bool isRaised) {
        std::vector<Line> lines =
            linesFromArt({"a A note that fills all of its", "b And another, which does too."}, 12);
        for (Line& line : lines)
            if (isRaised)
                line.words.front().spans.front().look.verticalPosition = document::VerticalPosition::Superscript;
        return buildParagraphs(lines, artColumn(30), kContext, {});
    };
    EXPECT_EQ(build(true).size(), 2u);
    EXPECT_EQ(build(false).size(), 1u);
}

TEST(ParagraphBuilder, GoesOnBelowAFullLineThoughTheLinesStandFarApart) {
    std::vector<Line> lines = linesFromArt({"The quick brown fox jumps over", "the lazy dog.",
                                            "Another one starts here and it", "goes on to the next line, too."});
    lines.push_back(makeLine("The quick brown fox jumps over", 0, 172));
    lines.push_back(makeLine("the lazy dog.", 0, 196));
    const auto paragraphs = buildParagraphs(lines, artColumn(30), kContext, {});
    ASSERT_EQ(paragraphs.size(), 3U);
    EXPECT_EQ(paragraphs[2].lines.size(), 2U);
}

TEST(ParagraphBuilder, SharesTheEdgeOfIndentedParagraphsWithSpaceBetween) {
    const std::string letters = "\u05D0\u05D1\u05D2\u05D3";
    const std::string full = letters + " " + letters + " " + letters + " " + letters + " " + letters;
    std::vector<Line> lines;
    for (int paragraph = 0; paragraph < 3; ++paragraph) {
        lines.push_back(makeLine(full, 20, 100 + 50 * paragraph));
        lines.push_back(makeLine(letters + ".", 20, 112 + 50 * paragraph));
    }
    EXPECT_EQ(buildParagraphs(lines, {0, lines[0].box.right + 60}, kContext, {}).size(), 3U)
        << "each first line has room for the word below it, but none uses it";
}

TEST(ParagraphBuilder, CentersLinesAboutAMiddleOfTheirOwn) {
    const auto paragraphs = build({"          The quick brown fox", "               jumps"}, 45);
    EXPECT_EQ(paragraphs.size(), 2U) << "there was room in the upper line";
    EXPECT_EQ(build({"  The quick brown fox jumps over the", "               lazy dog of it"}, 40).size(), 1U);
}

TEST(ParagraphBuilder, KeepsDoubleSpacedLinesTogether) {
    const auto paragraphs = build(
        {"The quick brown fox jumps over", "the lazy dog and runs away in", "the woods and then comes back", "again."},
        30, 24);
    EXPECT_EQ(paragraphs.size(), 1U);
    EXPECT_NEAR(paragraphs[0].leading, 24, 0.01);
}

TEST(ParagraphBuilder, FindsTheEdgeOfTextThatEndsBeforeItsColumn) {
    struct Row {
        std::vector<std::string> art; ///< in a column of 45 characters
        std::vector<std::string> expected;
        const char* why;
    };
    const Row rows[] = {
        {{"The quick brown fox jumps over", "the lazy dog and runs away in", "to the woods."},
         {"The quick brown fox jumps over the lazy dog and runs away in to the woods."},
         "sentences go on in lower case though the column has room"},
        {{"The  quick  brown  jumps  over", "The  lazy  dog  and  ran  away", "To the woods."},
         {"The quick brown jumps over The lazy dog and ran away To the woods."},
         "blanks are spread to one edge"},
        {{"Miller & Sons, Wholesale Dept.", "12 Long Street, Second Floor", "Springfield"},
         {"Miller & Sons, Wholesale Dept.", "12 Long Street, Second Floor", "Springfield"},
         "lines that end near each other by chance"},
        {{"import the.first.list;", "import the.other.list;", "import the.third.name;"},
         {"import the.first.list;", "import the.other.list;", "import the.third.name;"},
         "statements of a program"},
        {{"These programs are all free;", "the terms of each are in the", "files of it that come along."},
         {"These programs are all free; the terms of each are in the files of it that come along."},
         "one such sign alone is no program"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(textsOf(build(row.art, 45)), row.expected) << row.why;
}

TEST(ParagraphBuilder, TellsWhereRaggedLinesWereSetToEnd) {
    const std::vector<std::string> art = {"The quick brown fox jumps over", "extraordinary things and goes",
                                          "somewhere else."};
    const auto endIn = [&art](int columnWidth) {
        const auto paragraphs = build(art, columnWidth);
        EXPECT_EQ(paragraphs.size(), 1U) << columnWidth;
        return paragraphs[0].ownEnd;
    };
    const double longest = artColumn(30).right;
    ASSERT_TRUE(endIn(45));
    EXPECT_NEAR(*endIn(45), longest + 45 / 2.0, 0.01) << "half way to where the last line's word would have fitted";
    EXPECT_FALSE(endIn(36)) << "no word would have fitted before the column's edge";
}

TEST(ParagraphBuilder, LeavesTheLinesOfAProgramAmongOtherTextApart) {
    std::vector<pdf::Font> fonts(2, kFonts[0]);
    fonts[1].isFixedPitch = true;
    ParagraphContext context = kContext;
    context.fonts = fonts;
    const auto lines = [](const std::vector<std::string>& text, const std::vector<std::string>& typed) {
        std::vector<std::string> art = text;
        art.emplace_back();
        art.insert(art.end(), typed.begin(), typed.end());
        std::vector<Line> made = linesFromArt(art);
        for (std::size_t i = text.size(); i < made.size(); ++i)
            for (Word& word : made[i].words)
                for (Span& span : word.spans)
                    span.look.font = 1;
        return made;
    };
    const std::vector<std::string> program{"sudo make all install", "sudo ldconfig and more", "cd ../udev-rules then",
                                           "sudo sh install.sh it"};
    const std::vector<std::string> text{"These commands make it:"};
    EXPECT_EQ(buildParagraphs(lines(text, program), artColumn(45), context, {}).size(), 5U);
    EXPECT_EQ(buildParagraphs(lines({}, program), artColumn(45), context, {}).size(), 1U)
        << "where all is typed the words decide";
    for (pdf::Font& font : fonts)
        font.isFixedPitch = false;
    EXPECT_EQ(buildParagraphs(lines(text, program), artColumn(45), context, {}).size(), 2U) << "as of other text";
}

TEST(ParagraphBuilder, LearnsNoEdgeFromATypewritersLinesOfOneLength) {
    const std::vector<std::string> art{"Character code 33 is here", "Character code 34 is here",
                                       "Character code 35 is here", "Character code 36 is here"};
    std::vector<pdf::Font> fonts = kFonts;
    ParagraphContext context = kContext;
    context.fonts = fonts;
    EXPECT_EQ(buildParagraphs(linesFromArt(art), artColumn(45), context, {}).size(), 1U)
        << "four lines end at one edge, which letters of their own widths do not by chance";
    fonts[0].isFixedPitch = true;
    EXPECT_EQ(buildParagraphs(linesFromArt(art), artColumn(45), context, {}).size(), 4U);
}

TEST(ParagraphBuilder, PartsFullLinesThatBeginWithOneSign) {
    const auto count = [](const std::string& start) {
        return build({start + " the quick brown fox", start + " a fox that is brown", start + " and jumps so far"}, 26)
            .size();
    };
    EXPECT_EQ(count("-rw-r"), 3U) << "what a program printed";
    EXPECT_EQ(count("first"), 1U) << "the same word by chance";
    EXPECT_EQ(count("\"first"), 1U) << "a quotation may begin anywhere";
    EXPECT_EQ(count("$2000"), 1U) << "so may an amount";
    EXPECT_EQ(build({"-rw-r the quick brown fox", "-rrwr a fox that is brown"}, 26).size(), 1U);
}

TEST(ParagraphBuilder, GoesOnInAListItemUntilItsSentenceEnds) {
    const auto paragraphs = build({"\u2022 A text box ends before its", "  column does, so that items",
                                   "  look short here.", "\u2022 Another one"},
                                  60);
    EXPECT_EQ(textsOf(paragraphs),
              (std::vector<std::string>{"\u2022 A text box ends before its column does, so that items look short here.",
                                        "\u2022 Another one"}));
}

TEST(ParagraphBuilder, BeginsAnItemAtEachBoxToTick) {
    std::vector<Line> lines =
        linesFromArt({"x high school diploma, or", "  the equivalent of one in", "x some college, but less"}, 12);
    for (const std::size_t i : {0u, 2u}) {
        lines[i].words.front().spans.front().text = "\u2610";
        lines[i].words.front().spans.front().look.field = static_cast<int>(i);
    }
    const auto paragraphs = buildParagraphs(lines, artColumn(25), kContext, {});
    ASSERT_EQ(paragraphs.size(), 2u);
    EXPECT_EQ(paragraphs[0].lines.size(), 2u);
    EXPECT_LT(paragraphs[0].firstLine, 0) << "the box hangs";
}

TEST(ParagraphBuilder, PartsRowsOfFieldsOneBelowTheOther) {
    std::vector<Line> lines = linesFromArt({"from xxxxxxxx to xxxxxxxx", "from xxxxxxxx to xxxxxxxx"}, 12);
    const auto build = [&] { return buildParagraphs(lines, artColumn(25), kContext, {}).size(); };
    ASSERT_EQ(build(), 1u) << "full lines of text";
    for (Line& line : lines)
        line.words.at(1).spans.front().look.field = 0;
    EXPECT_EQ(build(), 1u) << "lines of one field";
    lines[1].words.at(1).spans.front().look.field = 1;
    EXPECT_EQ(build(), 2u);
}

TEST(ParagraphBuilder, HangsBelowALabelWhereverItsTabulatorIs) {
    const auto paragraphs = build({"1. The first item is long and", "     goes on farther in"}, 31);
    EXPECT_EQ(paragraphs.size(), 1U);
}

TEST(ParagraphBuilder, AllowsAShorterStepBelowTheFirstLine) {
    std::vector<Line> lines = {makeLine("The quick brown fox jumps over", 0, 100),
                               makeLine("the lazy dog and runs away in", 0, 110),
                               makeLine("the woods and then comes back", 0, 123),
                               makeLine("to the village with the others", 0, 136), makeLine("again.", 0, 149)};
    EXPECT_EQ(buildParagraphs(lines, artColumn(30), kContext, {}).size(), 1U);
    lines[4] = makeLine("Space above starts another one", 0, 158);
    EXPECT_EQ(buildParagraphs(lines, artColumn(30), kContext, {}).size(), 2U);
}

TEST(ParagraphBuilder, SetsLinesWithTabulatorsFromTheirStart) {
    std::vector lines = {makeLine("Mexico 2012", 150, 100)};
    EXPECT_EQ(buildParagraphs(lines, artColumn(41), kContext, {})[0].alignment, Alignment::End);
    lines[0].words[1].gapBefore = Gap::Tab;
    const auto paragraphs = buildParagraphs(lines, artColumn(41), kContext, {});
    EXPECT_EQ(paragraphs[0].alignment, Alignment::Start);
    EXPECT_NEAR(paragraphs[0].indentStart, 150, 0.1);
}

TEST(ParagraphBuilder, ReadsAlignment) {
    struct Row {
        std::vector<std::string> art; ///< in a column of 30 characters
        Alignment expected;
        const char* why;
    };
    const Row rows[] = {
        {{"The quick brown fox jumps over", "the lazy dog and runs awayyy", "to the woods."},
         Alignment::Start,
         "ragged"},
        {{"      A centred title"}, Alignment::Start, "off the middle by more than chance"},
        {{"       A centred title"}, Alignment::Center, "one line in the middle"},
        {{"  A centred title that is so", "      long that it wraps"}, Alignment::Center, "two lines in the middle"},
        {{"             14 September 2021"}, Alignment::End, "a date at the right edge"},
        {{"          Republic of Whatever", "                   Chancellery"},
         Alignment::End,
         "two lines at the right"},
    };
    for (const Row& row : rows) {
        const auto paragraphs = build(row.art, 30);
        ASSERT_EQ(paragraphs.size(), 1U) << row.why;
        EXPECT_EQ(paragraphs[0].alignment, row.expected) << row.why;
    }
}

TEST(ParagraphBuilder, ReadsJustifiedTextByItsStretchedBlanks) {
    const auto paragraphs = build({"The  quick  brown  jumps  over", "the lazy dog."}, 30);
    ASSERT_EQ(paragraphs.size(), 1U);
    EXPECT_EQ(paragraphs[0].alignment, Alignment::Justified);
}

// Typesetters let hyphens reach over the edge, so that it looks straight.
TEST(ParagraphBuilder, ReadsJustifiedTextWhoseHyphensHangOverTheEdge) {
    const std::vector<std::string> art = {"  The quick brown fox who jumps", "over the lazy dog runs away in-",
                                          "to the woods and is not seen by", "anyone."};
    const auto read = [&art](std::size_t hanging) {
        std::vector<Line> lines = linesFromArt(art, 12);
        for (Rect* box : {&lines[hanging].box, &lines[hanging].words.back().box})
            box->right += 2;
        return buildParagraphs(lines, artColumn(31), kContext, {}).at(0).alignment;
    };
    EXPECT_EQ(read(1), Alignment::Justified);
    EXPECT_EQ(read(0), Alignment::Start) << "letters do not hang, and a first line that is indented is no ragged start";
}

TEST(ParagraphBuilder, ReadsNoStretchedBlankFromTheGapBehindALabel) {
    const auto paragraphs = build({"1.  Items that run to the edge", "    and go on below it."}, 30);
    ASSERT_EQ(paragraphs.size(), 1U);
    EXPECT_EQ(paragraphs[0].alignment, Alignment::Start);
}

TEST(ParagraphBuilder, EndsAJustifiedParagraphAtItsShortLine) {
    const auto paragraphs =
        build({"The  quick  brown  jumps  over", "the  lazy  dog  and  ran  away", "to  the  woods  of  the  north",
               "and stayed there for good.", "Afterwards there was nothing to"},
              30);
    ASSERT_EQ(paragraphs.size(), 2U) << "\"Afterwards\" has no room behind \"good.\", but the line is not stretched";
    EXPECT_EQ(paragraphs[0].lines.size(), 4U);
}

TEST(ParagraphBuilder, EndsAParagraphAtTheStrokesOfAFormsField) {
    EXPECT_EQ(build({"Contact: ____________________", "Address: ____________________"}, 29).size(), 2U);
    EXPECT_EQ(build({"I, who live in ______________", "and was born on _____________"}, 29).size(), 1U);
    EXPECT_EQ(build({"Contact and what else it says", "Address: ____________________"}, 29).size(), 1U);
}

TEST(ParagraphBuilder, MeasuresIndents) {
    struct Row {
        std::vector<std::string> art; ///< in a column of 30 characters
        double start;
        double firstLine;
        const char* why;
    };
    const Row rows[] = {
        {{"  The quick brown fox jumps to", "the lazy dog again."}, 0, 10, "first line indented"},
        {{"1. The quick brown fox jumps o", "   the lazy dog again."}, 15, -15, "hanging below the label"},
        {{"1. The quick brown fox"}, 15, -15, "the label of a single line hangs too"},
        {{"    The quick brown fox jumps", "    the lazy dog again."}, 20, 0, "indented as a whole"},
    };
    for (const Row& row : rows) {
        const auto paragraphs = build(row.art, 30);
        ASSERT_EQ(paragraphs.size(), 1U) << row.why;
        EXPECT_NEAR(paragraphs[0].indentStart, row.start, 0.01) << row.why;
        EXPECT_NEAR(paragraphs[0].firstLine, row.firstLine, 0.01) << row.why;
    }
}

TEST(ParagraphBuilder, StartsAnewWhereTheLookOfWholeLinesChanges) {
    const std::vector<Line> lines = {makeLine("A heading as wide as its text", 0, 100, {.size = 10, .isBold = true}),
                                     makeLine("The quick brown fox jumps and", 0, 112),
                                     makeLine("Another size of text comes an", 0, 126, {.size = 12})};
    EXPECT_EQ(buildParagraphs(lines, artColumn(30), kContext, {}).size(), 3U);
}

TEST(ParagraphBuilder, MirrorsRightToLeftText) {
    std::vector<Line> lines = linesFromArt({"The quick brown fox jumps over", "  the lazy dog and runs awayyy",
                                            "                   to the wood", "the lazy dog and runs away in"});
    for (Line& line : lines)
        line.isRightToLeft = true;
    const auto paragraphs = buildParagraphs(lines, artColumn(30), kContext, {});
    EXPECT_EQ(paragraphs.size(), 2U) << "room is at the left end of the lines";
}

TEST(ParagraphBuilder, MeasuresLinesBesideAFigureAgainstTheRoomLeft) {
    const std::vector<Line> lines = linesFromArt({"The Quick Brown Fox", "Jumps Over The Lazy", "Dogs Of The Village"});
    const Rect figure{100, 80, 150, 140};
    EXPECT_EQ(buildParagraphs(lines, artColumn(30), kContext, {}).size(), 3U);
    ParagraphContext besideFigure = kContext;
    besideFigure.obstacles = {&figure, 1};
    EXPECT_EQ(buildParagraphs(lines, artColumn(30), besideFigure, {}).size(), 1U);
}

} // namespace
} // namespace orvane::layout
