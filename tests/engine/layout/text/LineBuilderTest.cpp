#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::TabLeader;
using document::VerticalPosition;
using pdf::tests::PageContentBuilder;
using testing::ElementsAre;
using testing::UnorderedElementsAre;
using tests::linesOf;
using tests::read;

TEST(LineBuilder, JoinsRunsOnOneBaseline) {
    PageContentBuilder page;
    double x = page.text(72, 100, "Plain, ", 12);
    const std::uint32_t bold = page.font([] {
        pdf::Font font;
        font.isBold = true;
        return font;
    }());
    x = page.text(x, 100, "bold", 12, {.font = bold});
    page.text(x, 100, " and plain", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Plain, bold and plain"));
}

TEST(LineBuilder, ReadsTextInTheOrderOfThePageWhateverItsPaintOrder) {
    PageContentBuilder page;
    page.text(125, 100, "second", 12);
    page.text(72, 115, "third", 12);
    page.text(72, 100, "The", 12);
    page.text(94, 100, "first", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("The first second", "third"));
}

TEST(LineBuilder, ReadsAWordThatBeginsOnAnotherAfterIt) {
    PageContentBuilder page;
    const double x = page.text(72, 100, "This is your", 12);
    page.text(x - 9, 100, "total income", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("This is your total income"));
}

TEST(LineBuilder, PartsAWordThatBeginsOnTheLastLetterOfAnother) {
    PageContentBuilder page;
    page.text(72 + PageContentBuilder::widthOf("Here is your", 12) - 5, 100, "amount", 12);
    page.text(72, 100, "Here is your", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("Here is your amount"));
}

TEST(LineBuilder, ReadsAWordThatBeginsOnABlankAfterIt) {
    PageContentBuilder page;
    const double x = page.text(72, 100, "taxable ", 12);
    page.text(x - 2.4, 100, "interest", 12);
    const double y = page.text(72, 130, "incomes ", 12);
    page.text(200, 130, "elsewhere", 12); // so that the next word is painted by itself
    page.text(y - 2.4, 130, "subtract", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("taxableinterest", "incomessubtract\telsewhere"))
        << "a blank without room is none, but must not stand behind the first letter of the next word";
}

TEST(LineBuilder, ReadsABulletThatLiesOnAWordAfterItWithItsText) {
    PageContentBuilder page;
    page.text(72 + PageContentBuilder::widthOf("footnote", 12) - 8, 100, "\u2022 item", 12);
    page.text(72, 100, "footnote", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("footnote \u2022 item"));
}

TEST(LineBuilder, ReadsAWordThatLiesOnALongerOneAfterIt) {
    PageContentBuilder page;
    page.text(72, 100, "sent at", 12);
    page.text(86, 100, "www.example.org/orders", 12);
    EXPECT_THAT(linesOf(page), ElementsAre("sent www.example.org/orders at"));
}

TEST(LineBuilder, CutsColumnsAtTheirGutter) {
    PageContentBuilder page;
    for (int i = 0; i < 5; ++i) {
        page.text(72, 100 + i * 14, "left hand column of text", 10);
        page.text(220, 100 + i * 14, "right hand column of text", 10);
    }
    const std::vector<std::string> lines = linesOf(page);
    EXPECT_EQ(lines.size(), 10u);
    EXPECT_THAT(lines, testing::Contains("left hand column of text").Times(5));
}

TEST(LineBuilder, CutsAtARuleBetweenCells) {
    PageContentBuilder page;
    page.text(72, 100, "left cell", 10);
    page.text(150, 100, "right cell", 10);
    page.verticalRule(140, 85, 110);
    EXPECT_THAT(linesOf(page), UnorderedElementsAre("left cell", "right cell"));
}

TEST(LineBuilder, KeepsASingleWideGapAsATab) {
    PageContentBuilder page;
    page.text(72, 60, "Annual report", 10);
    page.text(420, 60, "Page 3", 10);
    page.text(72, 100, "A line of text that runs over the whole width of the page as text lines do, or nearly.", 10);
    EXPECT_THAT(linesOf(page), testing::Contains("Annual report\tPage 3"));
}

TEST(LineBuilder, DoesNotCutJustifiedTextAtItsBlanks) {
    PageContentBuilder page;
    for (int i = 0; i < 4; ++i)
        page.text(72, 100 + i * 14, "some text that has wide blanks", 10, {.wordSpacing = 6});
    EXPECT_THAT(linesOf(page), testing::Each("some text that has wide blanks"));
}

TEST(LineBuilder, KeepsListLabelsWithTheirText) {
    PageContentBuilder page;
    for (int i = 0; i < 4; ++i) {
        page.text(72, 100 + i * 14, std::to_string(i + 1) + ".", 10);
        page.text(100, 100 + i * 14, "an item of the list", 10);
    }
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 4u);
    EXPECT_EQ(textOf(text.lines[2]), "3.\tan item of the list");
}

TEST(LineBuilder, CutsNumbersInColumnsThatLookLikeLabels) {
    PageContentBuilder page;
    for (int i = 0; i < 4; ++i) {
        page.text(72, 100 + i * 14, "1.5", 10);
        page.text(100, 100 + i * 14, "2.5", 10);
    }
    EXPECT_EQ(read(page).lines.size(), 8u);
}

TEST(LineBuilder, TakesTwoBlanksBehindAFullStopForBlanks) {
    PageContentBuilder page;
    page.text(72, 100, "This is one sentence.  And this is another one.", 10, {.wordSpacing = 1});
    page.text(72, 114, "The line below it.", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("This is one sentence. And this is another one.", "The line below it."));
}

TEST(LineBuilder, TakesTwoWideBlanksOfAStretchedRowForBlanks) {
    PageContentBuilder page;
    page.text(72, 100, "This is one sentence.  And another one.", 10, {.wordSpacing = 4});
    page.text(72, 114, "The line below it.", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("This is one sentence. And another one.", "The line below it."));
}

TEST(LineBuilder, TakesTheEvenGapsOfAStretchedRowForBlanks) {
    PageContentBuilder page;
    page.text(72, 100, "one short line stretched", 10, {.wordSpacing = 40});
    page.text(72, 114, "The line below it.", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("one short line stretched", "The line below it."));
}

TEST(LineBuilder, StretchesEachCellOfARowByItself) {
    const auto linesWith = [](double ruleTop) {
        PageContentBuilder page;
        page.text(72, 100, "a cell of quite a few words", 10);
        page.text(240, 100, "one more line stretched", 10, {.wordSpacing = 12});
        page.verticalRule(230, ruleTop, 104);
        return linesOf(page);
    };
    EXPECT_THAT(linesWith(90), ElementsAre("a cell of quite a few words", "one more line stretched"));
    EXPECT_THAT(linesWith(103), ElementsAre("a cell of quite a few words\tone\tmore\tline\tstretched"));
}

TEST(LineBuilder, TakesNumbersThatStandEvenlyApartForNoStretchedRow) {
    PageContentBuilder page;
    for (int i = 0; i < 5; ++i)
        page.text(72 + i * 70, 100, std::to_string(i * 2), 10);
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 1u);
    for (std::size_t i = 1; i < 5; ++i)
        EXPECT_EQ(text.lines[0].words.at(i).gapBefore, Gap::Tab);
}

TEST(LineBuilder, MakesLeadersTabs) {
    struct Row {
        const char* filler;
        TabLeader leader;
    };
    for (const Row& row : {Row{".", TabLeader::Dots}, Row{"_", TabLeader::Underscore}, Row{"-", TabLeader::Hyphens},
                           Row{"\xC2\xB7", TabLeader::MiddleDots}}) {
        PageContentBuilder page;
        double x = page.text(72, 100, "Contents", 10);
        for (int i = 0; i < 40; ++i)
            x = page.text(x, 100, row.filler, 10);
        page.text(x, 100, "7", 10);
        const PageText text = read(page);
        ASSERT_EQ(text.lines.size(), 1u) << row.filler;
        ASSERT_EQ(text.lines[0].words.size(), 2u) << row.filler;
        EXPECT_EQ(text.lines[0].words[1].gapBefore, Gap::Tab) << row.filler;
        EXPECT_EQ(text.lines[0].words[1].leaderBefore, row.leader) << row.filler;
        EXPECT_EQ(textOf(text.lines[0]), "Contents\t7") << row.filler;
    }
}

TEST(LineBuilder, LetsASentenceBreakOffWithFullStops) {
    PageContentBuilder page;
    page.text(72, 100, "from the work that only an expert can do . . . . We furnish any", 10);
    page.text(72, 114, "Where the page is . . . . 7", 10);
    EXPECT_THAT(linesOf(page),
                ElementsAre("from the work that only an expert can do . . . . We furnish any", "Where the page is\t7"));
}

TEST(LineBuilder, KeepsLinesToWriteOn) {
    PageContentBuilder page;
    page.text(72, 100, "Name ____________ and the place of birth, with the country", 10);
    page.text(72, 120, "Date ____________", 10);
    EXPECT_THAT(linesOf(page),
                ElementsAre("Name ____________ and the place of birth, with the country", "Date ____________"));
}

TEST(LineBuilder, KeepsBlanksToFillInBehindTheNumbersOfItems) {
    PageContentBuilder page;
    for (const double y : {100.0, 114.0, 128.0})
        page.text(72, y, y < 110 ? "3." : y < 120 ? "b)" : "4.", 10);
    page.text(96, 100, "............. a good salary", 10);
    page.text(96, 114, "............. the bus", 10);
    page.text(96, 128, "............. 57", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("3.\t............. a good salary", "b)\t............. the bus", "4.\t57"));
}

TEST(LineBuilder, KeepsBlanksToFillInBeforeWhatTheyAreFor) {
    PageContentBuilder page;
    page.text(72, 100, "____________ (date)", 10);
    page.text(72, 114, "................. (place)", 10);
    page.text(72, 128, "Name:", 10);
    page.text(150, 128, "____________ Section:", 10);
    EXPECT_THAT(linesOf(page),
                ElementsAre("____________ (date)", "................. (place)", "Name:\t____________ Section:"));
}

TEST(LineBuilder, LeadsFromAnEmptyLabelToTheHeadThatTheDotsTouch) {
    PageContentBuilder page;
    page.text(72, 100, ".................Actual", 10);
    page.text(72, 114, ".................,", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("Actual", ".................,"));
}

TEST(LineBuilder, LeadsFromABrokenTitleToItsPage) {
    PageContentBuilder page;
    page.text(72, 100, "................................. 57", 10);
    EXPECT_THAT(linesOf(page), ElementsAre("57"));
}

TEST(LineBuilder, KeepsRowsOfContentsTogether) {
    PageContentBuilder page;
    for (int i = 0; i < 5; ++i) {
        page.text(72, 100 + i * 14, "1." + std::to_string(i), 10);
        const double end = page.text(100, 100 + i * 14, "A chapter's name", 10);
        page.text(end, 100 + i * 14, "..............................", 10);
        page.text(300, 100 + i * 14, std::to_string(i), 10);
    }
    EXPECT_THAT(linesOf(page), testing::Contains("1.3\tA chapter's name\t3"));
    EXPECT_EQ(linesOf(page).size(), 5u);
}

TEST(LineBuilder, GivesTurnedTextLinesOfItsOwn) {
    PageContentBuilder page;
    page.text(72, 100, "upright text", 10);
    page.text(300, 100, "reads downwards", 10, {.angle = 90});
    page.text(400, 300, "reads upwards", 10, {.angle = 270});
    const PageText text = read(page);
    ASSERT_EQ(text.lines.size(), 3u);
    for (const Line& line : text.lines) {
        if (textOf(line) == "reads downwards") {
            EXPECT_EQ(line.angle, 90);
            EXPECT_NEAR(line.baseline, 300, 0.01);
            EXPECT_NEAR(line.box.top, 100, 0.01);
            EXPECT_NEAR(line.box.left, 298, 0.01) << "the descent lies to the left";
        } else if (textOf(line) == "reads upwards") {
            EXPECT_EQ(line.angle, 270);
            EXPECT_NEAR(line.box.bottom, 300, 0.01);
        } else {
            EXPECT_EQ(textOf(line), "upright text");
            EXPECT_EQ(line.angle, 0);
        }
    }
}

TEST(LineBuilder, ReadsAPageThatWasScannedAskew) {
    PageContentBuilder page;
    for (int i = 0; i < 3; ++i)
        page.text(72, 100 + i * 12, "a line of some length that drifts down over the page", 10, {.angle = 1.5});
    EXPECT_THAT(linesOf(page), testing::Each("a line of some length that drifts down over the page"));
    EXPECT_EQ(linesOf(page).size(), 3u);
    EXPECT_EQ(read(page).lines[0].angle, 0);
}

} // namespace
} // namespace orvane::layout
