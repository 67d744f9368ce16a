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

TEST(Line, KeepsItsDirectionInPartsThatMixBoth) {
    struct Row {
        const char* part;
        bool wasRightToLeft;
        bool isRightToLeft;
        const char* why;
    };
    const Row rows[] = {
        {"\u05D0\u05D1 960 164 MHz", true, true, "few of the words have right-to-left letters"},
        {"164 960", true, true, "numbers have no direction of their own"},
        {"164 960", false, false, "nor here"},
        {".464", true, false, "the full stop would change its side"},
        {"-90,8", true, false, "so would the sign"},
        {"-1", true, true, "a label"},
        {"English words", true, false, "nothing is read from the right"},
        {"\u05D0\u05D1 \u05D2\u05D3", false, true, "nothing is read from the left"},
        {"see \u05D0\u05D1 \u05D2\u05D3", false, false, "a quotation"},
    };
    for (const Row& row : rows) {
        Line line = makeLine(row.part, 72, 100);
        line.isRightToLeft = row.wasRightToLeft;
        for (Word& word : line.words)
            word.isRightToLeft = textOf(word).starts_with("\xD7");
        measureAnew(line);
        EXPECT_EQ(line.isRightToLeft, row.isRightToLeft) << row.part << ": " << row.why;
    }
}

} // namespace
} // namespace orvane::layout
