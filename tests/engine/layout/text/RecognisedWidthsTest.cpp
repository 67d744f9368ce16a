#include "layout/text/RecognisedWidths.h"

#include "engine/layout/PageContentBuilder.h"
#include "engine/layout/PageReading.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using pdf::Visibility;
using pdf::tests::PageContentBuilder;
using testing::Each;
using testing::SizeIs;

/// A scan of ten lines of four words, each word beginning `pitch` widths of itself behind the one before.
PageContentBuilder scanWithPitch(double pitch) {
    PageContentBuilder page;
    page.picture({0, 0, 595, 842});
    for (int line = 0; line < 10; ++line) {
        double left = 72;
        for (const char* word : {"generally", "clear", "particular", "transformation"}) {
            page.text(left, 100 + 14 * line, word, 10, {.visibility = Visibility::Invisible});
            left += pitch * PageContentBuilder::widthOf(word, 10);
        }
    }
    return page;
}

std::vector<Gap> gapsOf(const PageText& text) {
    std::vector<Gap> gaps;
    for (const Line& line : text.lines)
        for (std::size_t i = 1; i < line.words.size(); ++i)
            gaps.push_back(line.words[i].gapBefore);
    return gaps;
}

TEST(RecognisedWidths, StretchesWordsThatAreSetTooNarrow) {
    const PageText text = tests::read(scanWithPitch(1.9));
    ASSERT_THAT(text.lines, SizeIs(10));
    EXPECT_THAT(gapsOf(text), SizeIs(30));
    EXPECT_THAT(gapsOf(text), Each(Gap::Space));
    const Word& first = text.lines[0].words[0];
    EXPECT_GT(first.box.width(), 1.5 * PageContentBuilder::widthOf("generally", 10));
    EXPECT_LT(first.box.right, text.lines[0].words[1].box.left);
}

TEST(RecognisedWidths, LeavesWordsThatFillTheirRoom) {
    const PageText text = tests::read(scanWithPitch(1.1));
    EXPECT_NEAR(text.lines.at(0).words.at(0).box.width(), PageContentBuilder::widthOf("generally", 10), 0.5);
}

} // namespace
} // namespace orvane::layout
