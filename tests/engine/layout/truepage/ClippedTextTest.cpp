#include "layout/truepage/ClippedText.h"

#include "engine/layout/DraftSupport.h"
#include "layout/text/LineText.h"
#include "layout/truepage/TruePageDocument.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace orvane::layout::tests {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

Line clipped(const char* words, double left, double baseline) {
    Line line = makeLine(words, left, baseline);
    for (Word& word : line.words)
        word.spans[0].look.isClippedAway = true;
    return line;
}

/// The frames of a page with a frame of these lines, after what was clipped away came to it.
std::vector<ParagraphDraft> framesOf(std::vector<Line> seen, std::vector<Line> lines) {
    std::vector<DraftBlock> frames;
    frames.push_back(makeBlock(makeParagraph(std::move(seen))));
    addClippedText(frames, std::move(lines), 0, {});
    std::vector<ParagraphDraft> texts;
    for (DraftBlock& frame : frames)
        texts.push_back(frame.paragraph()->pieces.front().text);
    return texts;
}

TEST(ClippedText, GoesOnBelowTheFrameThatIsTooLowForIt) {
    const auto frames = framesOf({makeLine("an entry of", 72, 140), makeLine("more lines", 72, 152)},
                                 {clipped("than its field", 72, 176), clipped("holds and some longer ones", 72, 164)});
    ASSERT_THAT(frames, SizeIs(1));
    const ParagraphDraft& text = frames[0];
    ASSERT_THAT(text.lines, SizeIs(4));
    EXPECT_EQ(textOf(text.lines[2]), "holds and some longer ones");
    EXPECT_EQ(text.linesBelow, 2u);
    EXPECT_THAT(text.hardBreaks, ElementsAre(1, 2));
    EXPECT_FALSE(text.lines[3].words[0].spans[0].look.isClippedAway) << "the frame's foot hides it";
    EXPECT_GE(text.box.right, text.lines[2].box.right);
}

TEST(ClippedText, StandsByItselfWhereNoFrameGoesOn) {
    const struct {
        const char* why;
        Line line;
    } rows[] = {{"behind the line", clipped("cut off", 300, 140)},
                {"farther below", clipped("cut off", 72, 200)},
                {"from another edge", clipped("cut off", 90, 152)},
                {"in other letters", makeLine("cut off", 72, 152, {.size = 8})}};
    for (const auto& row : rows) {
        const auto frames = framesOf({makeLine("an entry that is", 72, 140)}, {row.line});
        ASSERT_THAT(frames, SizeIs(2)) << row.why;
        EXPECT_EQ(frames[0].linesBelow, 0u) << row.why;
        EXPECT_EQ(textOf(frames[1].lines.at(0)), "cut off") << row.why;
    }
}

/// The frames of the first page of a document.
std::vector<document::Frame> pageFrames(PageText page) {
    Diagnostics diagnostics;
    class : public JobObserver {
        void stageReached(JobStage, int, int) override {}
        bool isCancelled() const override { return false; }
    } observer;
    const document::Document document =
        truePageDocument({std::move(page)}, {}, {LayoutMode::TruePage, false, false}, {}, observer, diagnostics);
    std::vector<document::Frame> frames;
    for (const document::Block& block : document.sections.at(0).blocks)
        if (const auto* frame = std::get_if<document::Frame>(&block.value))
            frames.push_back(*frame);
    return frames;
}

TEST(ClippedText, IsHiddenInFramesOfItsOwn) {
    PageText page = makePage(1);
    page.lines = {makeLine("an entry that is", 72, 140)};
    page.clippedLines = {clipped("cut off", 172, 140)};
    const auto frames = pageFrames(page);
    ASSERT_THAT(frames, SizeIs(2));
    const auto isHidden = [](const document::Frame& frame) {
        const auto& inlines = std::get<document::Paragraph>(frame.blocks.at(0).value).inlines;
        return std::all_of(inlines.begin(), inlines.end(), [](const document::Inline& item) {
            const auto* text = std::get_if<document::Text>(&item.value);
            return text && text->properties.isHidden;
        });
    };
    EXPECT_FALSE(isHidden(frames[0]));
    EXPECT_TRUE(isHidden(frames[1])) << "the blank between its words too";
}

TEST(ClippedText, MakesNoFrameHigher) {
    PageText page = makePage(1);
    page.lines = {makeLine("an entry of", 72, 140), makeLine("more lines", 72, 152)};
    const Emu height = pageFrames(page).at(0).height;
    page.clippedLines = {clipped("than it holds", 72, 164)};
    const auto frames = pageFrames(page);
    ASSERT_THAT(frames, SizeIs(1));
    EXPECT_EQ(frames[0].height.value, height.value);
    EXPECT_EQ(frames[0].growth, document::FrameGrowth::Never);
}

} // namespace
} // namespace orvane::layout::tests
