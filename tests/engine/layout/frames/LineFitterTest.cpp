#include "layout/frames/LineFitter.h"

#include "engine/layout/DraftSupport.h"
#include "layout/frames/LineMeter.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

using document::Alignment;

/// A page whose font is called that, with one paragraph of a line.
DocumentDraft draftOf(const char* font, Line line, Alignment alignment = Alignment::Start) {
    DocumentDraft draft = makeDraft(1);
    draft.pages[0].fonts[0].name = draft.pages[0].fonts[0].family = font;
    ParagraphDraft paragraph = makeParagraph({std::move(line)});
    paragraph.alignment = alignment;
    draft.blocks.push_back(makeBlock(std::move(paragraph)));
    return draft;
}

/// The text of the draft's paragraph, fitted.
ParagraphDraft fitted(DocumentDraft draft, Tracking tracking = Tracking::InWidths) {
    const FontCatalog fonts(draft, FontParameters(), tracking);
    fitLines(draft.blocks, fonts, tracking, {});
    return draft.blocks[0].paragraph()->pieces[0].text;
}

/// By how much the first character of the draft is stretched.
double stretchIn(DocumentDraft draft, Tracking tracking = Tracking::InWidths) {
    return fitted(std::move(draft), tracking).lines[0].words[0].spans[0].look.horizontalScale;
}

/// By how much the blank before the second word is stretched.
double blankStretchIn(DocumentDraft draft) {
    return fitted(std::move(draft)).lines[0].words[1].blankStretch;
}

/// Moves the words from `first` on.
Line moved(Line line, std::size_t first, double by) {
    for (std::size_t i = first; i < line.words.size(); ++i)
        for (Rect* box : {&line.words[i].box, &line.words[i].spans[0].box}) {
            box->left += by;
            box->right += by;
        }
    line.box.right = line.words.back().box.right;
    return line;
}

constexpr const char* kTimes = "Times New Roman";

TEST(LineFitter, SetsALineAsWideAsItIsOnThePage) {
    // Each character is half an em wide on the page; those of Times are 0.389 (s) and 0.778 (m).
    EXPECT_NEAR(stretchIn(draftOf(kTimes, makeLine("ssss", 72, 100))), 1.28, 0.011);
    EXPECT_NEAR(stretchIn(draftOf(kTimes, makeLine("mmmm", 72, 100))), 0.64, 0.011);
    EXPECT_EQ(stretchIn(draftOf(kTimes, makeLine("pppp", 72, 100))), 1) << "half an em in both";
    EXPECT_EQ(stretchIn(draftOf(kTimes, makeLine("iiii", 72, 100))), 1) << "so far is no fit";
}

TEST(LineFitter, MeasuresInTheSizeThatFormatsHold) {
    // 10.2 points are written as 10, and the line would end at 0.98 of its width.
    Line line = makeLine("pppp", 72, 100);
    line.words[0].spans[0].look.size = 10.2;
    for (Rect* box : {&line.box, &line.words[0].box, &line.words[0].spans[0].box})
        box->right = box->left + 1.02 * box->width();
    EXPECT_NEAR(stretchIn(draftOf(kTimes, line)), 1.02, 0.001);
}

TEST(LineFitter, LeavesLinesAloneThatAreAsWide) {
    EXPECT_EQ(stretchIn(draftOf("Georgia", makeLine("some text", 72, 100))), 1) << "its widths are the font's own";
    EXPECT_EQ(stretchIn(draftOf(kTimes, makeLine("rr\trr", 72, 100))), 1) << "tabulators take what is left";
}

TEST(LineFitter, MeasuresFontsThatTravelByTheirOwnAdvances) {
    DocumentDraft draft = draftOf("Lato", makeLine("abab", 72, 100));
    draft.pages[0].fonts[0].objectNumber = 7;
    CarriedFont font;
    font.request.family = "Lato";
    font.request.sources = {{7, {{U'a', 'a', 0.5}, {U'b', 'b', 0.6}}}};
    const FontCatalog fonts(draft, FontParameters(), Tracking::InWidths, CarriedFonts(std::vector{font}));
    EXPECT_TRUE(areWidthsKnown(draft.blocks[0].paragraph()->pieces[0].text, 0, fonts));
    fitLines(draft.blocks, fonts, Tracking::InWidths, {});
    // Each character is half an em wide on the page, where the letters were drawn together.
    EXPECT_NEAR(draft.blocks[0].paragraph()->pieces[0].text.lines[0].words[0].spans[0].look.horizontalScale, 2 / 2.2,
                0.006);
}

TEST(LineFitter, SetsBlanksSoThatWordsStartWhereTheyStood) {
    // The blank of Times is a quarter of an em, on the page it is half an em.
    const Line line = makeLine("pppp pppp", 72, 100);
    EXPECT_NEAR(blankStretchIn(draftOf(kTimes, line)), 2, 0.01);
    EXPECT_NEAR(blankStretchIn(draftOf(kTimes, moved(line, 1, 6))), 4.4, 0.01);
    EXPECT_EQ(blankStretchIn(draftOf(kTimes, moved(line, 1, -2.4))), 1) << "so near nobody sees it";
    EXPECT_EQ(blankStretchIn(draftOf("Georgia", line)), 1) << "nobody knows how wide its blanks are";
}

TEST(LineFitter, SharesWhatTypedBlanksLackAmongThem) {
    Line line = moved(makeLine("pppp pppp", 72, 100), 1, 5);
    line.words[1].blanksBefore = 2;
    EXPECT_NEAR(blankStretchIn(draftOf(kTimes, line)), 2, 0.01);
}

TEST(LineFitter, LeavesBlanksToJustificationWhereTheyAreEven) {
    const ParagraphDraft even = fitted(draftOf(kTimes, makeLine("pppp pppp pppp", 72, 100), Alignment::Justified));
    EXPECT_EQ(even.alignment, Alignment::Justified);
    EXPECT_EQ(even.lines[0].words[1].blankStretch, 1);
    // Typesetters leave more room behind full stops.
    const Line uneven = moved(makeLine("pppp pppp pppp", 72, 100), 1, 3);
    const ParagraphDraft text = fitted(draftOf(kTimes, uneven, Alignment::Justified));
    EXPECT_EQ(text.alignment, Alignment::Start);
    EXPECT_NEAR(text.lines[0].words[1].blankStretch, 3.2, 0.01);
    EXPECT_NEAR(text.lines[0].words[2].blankStretch, 2, 0.01);
}

TEST(LineFitter, SqueezesALineBetweenTwoEdgesThatIsALittleTooLong) {
    // The blank of Times is a quarter of an em; on the page it is nearly that.
    const Line line = moved(makeLine("pppp pppp", 72, 100), 1, -2.6);
    EXPECT_LT(stretchIn(draftOf(kTimes, line, Alignment::Justified)), 1);
    EXPECT_GT(stretchIn(draftOf(kTimes, line, Alignment::Justified)), 0.97);
    EXPECT_EQ(blankStretchIn(draftOf(kTimes, line, Alignment::Justified)), 1);
}

TEST(LineFitter, StretchesAWordByItselfThatTheLinesStretchLeavesOff) {
    // Words of Times as wide as they are, and one of half an em a letter that has 0.389.
    const ParagraphDraft text = fitted(draftOf(kTimes, makeLine("pppp pppp ssss pppp", 72, 100)));
    EXPECT_NEAR(text.lines[0].words[2].spans[0].look.horizontalScale, 1.28, 0.011);
    EXPECT_LT(text.lines[0].words[0].spans[0].look.horizontalScale, 1.02);
}

TEST(LineFitter, JustifiesNoLinesOfUnknownWidths) {
    const Line line = makeLine("pppp pppp", 72, 100);
    EXPECT_EQ(fitted(draftOf("Georgia", line, Alignment::Justified)).alignment, Alignment::Start);
    EXPECT_EQ(fitted(draftOf(kTimes, line, Alignment::Justified)).alignment, Alignment::Justified);
}

TEST(LineFitter, LeavesTheDistancesOfLettersToTheRunsThatSayThem) {
    Line line = makeLine("pppp", 72, 100);
    Span& span = line.words[0].spans[0];
    span.look.characterSpacing = 1;
    for (Rect* box : {&span.box, &line.words[0].box, &line.box})
        box->right += 4;
    EXPECT_NEAR(stretchIn(draftOf(kTimes, line)), 1.2, 0.011);
    EXPECT_EQ(stretchIn(draftOf(kTimes, line), Tracking::Kept), 1);
}

TEST(LineFitter, MeasuresLinesThatRunUpThePage) {
    Line line = makeLine("ssss", 72, 100);
    line.angle = 270;
    for (Rect* box : {&line.box, &line.words[0].box, &line.words[0].spans[0].box})
        *box = {box->top, box->left, box->bottom, box->right};
    EXPECT_NEAR(stretchIn(draftOf(kTimes, line)), 1.28, 0.011);
}

/// Which of two lines wrap. The first ends with the word, and its blanks are `spread` points wider than typed; the
/// second begins with a word of that width.
std::vector<std::size_t> wrappingIn(const char* end, double restWidth, Alignment alignment, double spread = 0) {
    Line first = moved(moved(makeLine(std::string("pppp pppp ") + end, 72, 100), 1, spread), 2, spread),
         second = makeLine("pp pppp pppp ppppp", 72, 112);
    second.words[0].box.right = second.words[0].box.left + restWidth;
    DocumentDraft draft = draftOf(kTimes, first, alignment);
    ParagraphDraft& text = draft.blocks[0].paragraph()->pieces[0].text;
    text.lines.push_back(second);
    text.box.right = std::max(text.box.right, first.box.right);
    text.hardBreaks = {0};
    return fitted(std::move(draft)).wrappingLines;
}

TEST(LineFitter, KnowsTheLinesThatMustWrapInADividedWord) {
    const std::vector<std::size_t> first{0}, none;
    EXPECT_EQ(wrappingIn("ppppppp-", 30, Alignment::Start), first);
    EXPECT_EQ(wrappingIn("pppppppp", 30, Alignment::Start), none) << "no word is divided";
    EXPECT_EQ(wrappingIn("ppppppp-", 2, Alignment::Start), none) << "the rest might find room";
    EXPECT_EQ(wrappingIn("ppppppppppppppp-", 30, Alignment::Justified), first);
    EXPECT_EQ(wrappingIn("ppppppppppppppp-", 30, Alignment::Justified, 20), none)
        << "its blanks are spread: it has room";
    EXPECT_EQ(wrappingIn("ppppppp-", 30, Alignment::Center), none) << "centred lines have room at both sides";
}

} // namespace
} // namespace orvane::layout::tests
