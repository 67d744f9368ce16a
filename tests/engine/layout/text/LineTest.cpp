#include "layout/text/Line.h"

#include "layout/text/LineText.h"

#include "engine/layout/TextBuilder.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;

TEST(Line, SplitsBeforeAWord) {
    Line line = makeLine("left part\tright part", 72, 100);
    const Line rest = splitLine(line, 2);
    EXPECT_EQ(textOf(line), "left part");
    EXPECT_EQ(textOf(rest), "right part");
    EXPECT_EQ(rest.words[0].gapBefore, Gap::None);
    EXPECT_EQ(line.box.right, line.words[1].box.right);
    EXPECT_EQ(rest.box.left, rest.words[0].box.left);
    EXPECT_EQ(rest.baseline, 100);
}

TEST(Line, JoinsWhatWasSplit) {
    Line line = makeLine("left part\tright part", 72, 100);
    const Line whole = line;
    Line rest = splitLine(line, 2);
    joinLines(line, std::move(rest));
    EXPECT_EQ(textOf(line), textOf(whole));
    EXPECT_EQ(line.box, whole.box);
}

} // namespace
} // namespace orvane::layout
