#include "layout/frames/FrameJoiner.h"

#include "engine/layout/DraftSupport.h"
#include "layout/LayoutParameters.h"
#include "layout/frames/FrameCutter.h"
#include "layout/text/LineText.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

/// A paragraph for each of the lines, as a table's cells have them.
std::vector<DraftBlock> joined(std::vector<Line> lines) {
    const auto parameters = LayoutParameters().textBoxes;
    std::vector<DraftBlock> blocks;
    for (Line& line : lines)
        blocks.push_back(makeBlock(makeParagraph({std::move(line)})));
    return joinFrames(cutIntoFrames(std::move(blocks), parameters), parameters);
}

const Line& lineOf(const DraftBlock& frame) {
    return frame.paragraph()->firstLine();
}

TEST(FrameJoiner, CellsOfARowAreOneFrameWithTabulators) {
    const auto frames =
        joined({makeLine("a", 72, 100), makeLine("b", 172, 100), makeLine("c", 272, 100), makeLine("d", 72, 112)});
    ASSERT_EQ(frames.size(), 2u);
    const Line& row = lineOf(frames[0]);
    ASSERT_EQ(row.words.size(), 3u);
    EXPECT_EQ(row.words[1].gapBefore, Gap::Tab);
    EXPECT_EQ(row.words[2].gapBefore, Gap::Tab);
    EXPECT_EQ(frames[0].paragraph()->pieces.front().column.right, row.box.right);
    EXPECT_EQ(frames[0].box.right, row.box.right);
}

TEST(FrameJoiner, TextThatCouldGrowIntoTheNextStaysApart) {
    EXPECT_EQ(joined({makeLine("some long text", 72, 100), makeLine("b", 146, 100)}).size(), 2u);
}

TEST(FrameJoiner, LinesOfOtherBaselinesOrDirectionsStayApart) {
    EXPECT_EQ(joined({makeLine("a", 72, 100), makeLine("b", 172, 101)}).size(), 2u);
    Line turned = makeLine("b", 172, 100);
    turned.angle = 90;
    EXPECT_EQ(joined({makeLine("a", 72, 100), turned}).size(), 2u);
    EXPECT_EQ(joined({makeLine("a", 172, 100), makeLine("b", 72, 100)}).size(), 2u) << "it stands before the other";
}

TEST(FrameJoiner, ALeaderStaysWithWhatItComesFrom) {
    Line total = makeLine("10", 272, 100);
    total.words.front().leaderBefore = document::TabLeader::Dots;
    const auto frames = joined({makeLine("label", 72, 100), makeLine("other column", 72, 112), total});
    ASSERT_EQ(frames.size(), 2u);
    const Line& row = lineOf(frames[0]);
    ASSERT_EQ(row.words.size(), 2u);
    EXPECT_EQ(row.words[1].leaderBefore, document::TabLeader::Dots);
    EXPECT_EQ(row.words[1].gapBefore, Gap::Tab);
}

} // namespace
} // namespace orvane::layout::tests
