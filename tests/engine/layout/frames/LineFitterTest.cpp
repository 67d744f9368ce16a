#include "layout/frames/LineFitter.h"

#include "engine/layout/DraftSupport.h"

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

/// By how much the first character of the draft is stretched.
double stretchIn(DocumentDraft draft, Tracking tracking = Tracking::InWidths) {
    const FontCatalog fonts(draft, FontParameters(), tracking);
    fitLines(draft.blocks, fonts, tracking, {});
    return draft.blocks[0].paragraph()->firstLine().words[0].spans[0].look.horizontalScale;
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

TEST(LineFitter, MakesRoomForBlanksOfALineBetweenTwoEdges) {
    // The blank of Times is a quarter of an em; on the page it is a tenth.
    Line line = makeLine("pppp pppp", 72, 100);
    Word& second = line.words[1];
    for (Rect* box : {&second.box, &second.spans[0].box}) {
        box->left -= 4;
        box->right -= 4;
    }
    line.box.right -= 4;
    EXPECT_LT(stretchIn(draftOf(kTimes, line, Alignment::Justified)), 0.98);
    EXPECT_GT(stretchIn(draftOf(kTimes, line, Alignment::Justified)), 0.9);
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

} // namespace
} // namespace orvane::layout::tests
