#include "layout/frames/FrameCutter.h"

#include "engine/layout/DraftSupport.h"
#include "layout/text/LineText.h"

#include <gtest/gtest.h>

namespace orvane::layout::tests {
namespace {

using document::Alignment;

/// A line of `length` letters.
Line lineOf(std::size_t length, double left, double baseline) {
    return makeLine(std::string(length, 'x'), left, baseline);
}

std::vector<DraftBlock> framesOf(std::vector<Line> lines) {
    return cutIntoFrames({makeBlock(makeParagraph(std::move(lines)))}, LayoutParameters().textBoxes);
}

const ParagraphDraft& textOfFrame(const DraftBlock& frame) {
    return frame.paragraph()->pieces.front().text;
}

/// What the frames hold: their lines' texts, "/" between lines.
std::vector<std::string> textsOf(const std::vector<DraftBlock>& frames) {
    std::vector<std::string> texts;
    for (const DraftBlock& frame : frames) {
        std::string& text = texts.emplace_back();
        for (const Line& line : textOfFrame(frame).lines)
            text += (text.empty() ? "" : "/") + textOf(line);
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(FrameCutter, RegularLinesAreOneFrameAndEndByHand) {
    const auto frames = framesOf({makeLine("one", 72, 100), makeLine("three", 72, 112), makeLine("six", 72, 124)});
    EXPECT_EQ(textsOf(frames), (Texts{"one/three/six"}));
    const ParagraphDraft& text = textOfFrame(frames[0]);
    EXPECT_EQ(text.hardBreaks, (std::vector<std::size_t>{0, 1}));
    EXPECT_EQ(text.leading, 12);
    EXPECT_EQ(text.alignment, Alignment::Start);
}

TEST(FrameCutter, AnotherPitchOrPlaceStartsAnother) {
    EXPECT_EQ(textsOf(framesOf({makeLine("a", 72, 100), makeLine("b", 72, 112), makeLine("c", 72, 130)})),
              (Texts{"a/b", "c"}))
        << "pitch";
    EXPECT_EQ(textsOf(framesOf({makeLine("abcdef", 72, 100), makeLine("abcdef", 72, 112), makeLine("abc", 200, 124)})),
              (Texts{"abcdef/abcdef", "abc"}))
        << "place";
    EXPECT_EQ(textsOf(framesOf({makeLine("left", 72, 100), makeLine("right", 300, 100)})), (Texts{"left", "right"}))
        << "side by side";
}

TEST(FrameCutter, WordsThatOverlapStandByThemselves) {
    Line line = makeLine("one two", 72, 100);
    for (Rect* box : {&line.words[1].box, &line.words[1].spans[0].box}) {
        box->left -= 15;
        box->right -= 15;
    }
    EXPECT_EQ(textsOf(framesOf({line})), (Texts{"one", "two"}));
}

TEST(FrameCutter, TellsHowTheLinesStand) {
    struct Row {
        std::vector<Line> lines;
        Alignment expected;
        const char* why;
    };
    const Row rows[] = {
        {{lineOf(20, 72, 100), lineOf(10, 97, 112), lineOf(16, 82, 124)}, Alignment::Center, "middles agree"},
        {{lineOf(20, 72, 100), lineOf(10, 122, 112)}, Alignment::End, "ends agree"},
        {{lineOf(20, 72, 100), lineOf(20, 72, 112), lineOf(20, 72, 124), lineOf(6, 72, 136)},
         Alignment::Justified,
         "both edges, but for the last line"},
        {{lineOf(18, 82, 100), lineOf(20, 72, 112), lineOf(20, 72, 124)},
         Alignment::Justified,
         "an indented first line"},
        {{lineOf(20, 72, 100), lineOf(17, 72, 112), lineOf(19, 72, 124)}, Alignment::Start, "starts alone"},
    };
    for (const Row& row : rows) {
        const auto frames = framesOf(row.lines);
        ASSERT_EQ(frames.size(), 1u) << row.why;
        EXPECT_EQ(textOfFrame(frames[0]).alignment, row.expected) << row.why;
    }
    const auto indented = framesOf(rows[3].lines);
    EXPECT_EQ(textOfFrame(indented[0]).indentStart, 0);
    EXPECT_EQ(textOfFrame(indented[0]).firstLine, 10);
}

TEST(FrameCutter, CutsAtTabulatorsThatGiveTextAPlace) {
    EXPECT_EQ(textsOf(framesOf({makeLine("Total\t12", 72, 100)})), (Texts{"Total", "12"})) << "a line of its own";
    // "1." is 10 wide, the tabulator 20: the text hangs at 102.
    EXPECT_EQ(textsOf(framesOf({makeLine("1.\tone", 72, 100), makeLine("more", 102, 112)})), (Texts{"1.", "one/more"}))
        << "a label before text that hangs";
}

TEST(FrameCutter, CutsAtBlanksThatAreTooWideForThem) {
    const auto spread = [](double step) {
        Line line = makeLine("one two six", 72, 100);
        for (std::size_t i = 1; i < line.words.size(); ++i) {
            Word& word = line.words[i];
            const double shift = 72 + step * static_cast<double>(i) - word.box.left;
            for (Rect* box : {&word.box, &word.spans[0].box}) {
                box->left += shift;
                box->right += shift;
            }
            line.box = line.box.united(word.box);
        }
        return line;
    };
    EXPECT_EQ(textsOf(framesOf({spread(60)})), (Texts{"one", "two", "six"}));
    EXPECT_EQ(textsOf(framesOf({spread(25)})), (Texts{"one two six"}));
}

TEST(FrameCutter, ALeaderStaysWithinItsLine) {
    Line line = makeLine("Aims\t7", 72, 100);
    line.words[1].leaderBefore = document::TabLeader::Dots;
    EXPECT_EQ(framesOf({line}).size(), 1u);
}

TEST(FrameCutter, TakesTheTextOfCells) {
    DraftBlock block;
    DraftTable table;
    for (const char* text : {"a", "b"})
        table.cells.push_back({{}, {makeBlock(makeParagraph({makeLine(text, 72, 100)}))}});
    block.value = std::move(table);
    std::vector<DraftBlock> blocks;
    blocks.push_back(std::move(block));
    EXPECT_EQ(textsOf(cutIntoFrames(std::move(blocks), LayoutParameters().textBoxes)), (Texts{"a", "b"}));
}

TEST(FrameCutter, HyphensMayStandOutOverAFlushEdge) {
    // Letters are five points wide.
    const auto alignmentOf = [](double farther) {
        std::vector<Line> lines;
        for (int i = 0; i < 5; ++i)
            lines.push_back(lineOf(i == 4 ? 10 : 40, 72, 100 + 12 * i));
        for (Rect* box : {&lines[1].box, &lines[1].words[0].box, &lines[1].words[0].spans[0].box})
            box->right += farther;
        return textOfFrame(framesOf(std::move(lines))[0]).alignment;
    };
    EXPECT_EQ(alignmentOf(2.5), Alignment::Justified);
    EXPECT_EQ(alignmentOf(6), Alignment::Start);
}

} // namespace
} // namespace orvane::layout::tests
