#include "layout/structure/HandBreaks.h"

#include "layout/text/LineText.h"

#include "engine/layout/DraftSupport.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace orvane::layout {
namespace {

using tests::makeBlock;
using tests::makeDraft;
using tests::makeLine;
using tests::makeParagraph;

/// One paragraph of the page: its lines, and the space before it.
struct Given {
    std::vector<std::string> lines;
    double space = 0;
    tests::LineLook look = {};
    double left = 72;
};

/// The paragraphs of a page, one below the other at a leading of 12 points, as joined: "one/two | three".
std::string joined(const std::vector<Given>& paragraphs) {
    DocumentDraft draft = makeDraft(1);
    double baseline = 60;
    for (const Given& given : paragraphs) {
        baseline += given.space;
        std::vector<Line> lines;
        for (const std::string& line : given.lines)
            lines.push_back(makeLine(line, given.left, baseline += 12, given.look));
        draft.blocks.push_back(makeBlock(makeParagraph(std::move(lines))));
        draft.blocks.back().paragraph()->pieces[0].text.leading = 12;
    }
    DocumentContext context;
    context.bodyFontSize = 10;
    context.bodyLeading = 12;
    joinLinesEndedByHand(draft, context, {});
    std::string text;
    for (const DraftBlock& block : draft.blocks) {
        const ParagraphDraft& paragraph = block.paragraph()->pieces[0].text;
        text += text.empty() ? "" : " | ";
        for (std::size_t i = 0; i < paragraph.lines.size(); ++i) {
            const auto& breaks = paragraph.hardBreaks;
            const bool isHard = i > 0 && std::find(breaks.begin(), breaks.end(), i - 1) != breaks.end();
            text += fmt::format("{}{}", i == 0 ? "" : isHard ? "/" : " ", textOf(paragraph.lines[i]));
        }
    }
    return text;
}

/// Paragraphs that are set apart by that space, and what is behind them.
std::vector<Given> spaced(double space, const std::vector<Given>& rest) {
    std::vector<Given> all;
    for (const char* name : {"alpha", "beta", "gamma", "delta", "eta", "zeta"})
        all.push_back({{name}, space});
    all.insert(all.end(), rest.begin(), rest.end());
    return all;
}

TEST(HandBreaks, JoinsLinesWithoutTheSpaceThatParagraphsHave) {
    EXPECT_EQ(joined(spaced(8, {{{"one"}, 8}, {{"two", "goes on"}}, {{"three"}}, {{"four"}, 8}})),
              "alpha | beta | gamma | delta | eta | zeta | one/two goes on/three | four");
}

TEST(HandBreaks, LeavesParagraphsThatEmptyLinesPart) {
    EXPECT_EQ(joined(spaced(12, {{{"one"}, 12}, {{"two"}}})), "alpha | beta | gamma | delta | eta | zeta | one | two");
}

TEST(HandBreaks, LeavesParagraphsThatLittleSpaceParts) {
    EXPECT_EQ(joined(spaced(3, {{{"one"}, 3}, {{"two"}}})), "alpha | beta | gamma | delta | eta | zeta | one | two");
}

TEST(HandBreaks, WantsOneSpaceOfMostParagraphs) {
    EXPECT_EQ(joined({{{"alpha"}}, {{"beta"}, 8}, {{"one"}, 8}, {{"two"}}, {{"gamma"}, 8}}),
              "alpha | beta | one | two | gamma")
        << "too few";
    EXPECT_EQ(joined({{{"alpha"}},
                      {{"beta"}, 3},
                      {{"gamma"}, 6},
                      {{"delta"}, 9},
                      {{"eta"}, 4},
                      {{"zeta"}, 7},
                      {{"one"}, 9},
                      {{"two"}}}),
              "alpha | beta | gamma | delta | eta | zeta | one | two")
        << "many spaces";
}

TEST(HandBreaks, LeavesWhatLooksOtherwise) {
    EXPECT_EQ(joined(spaced(8, {{{"one"}, 8},
                                {{"large"}, 0, {.size = 14}},
                                {{"bold"}, 0, {.size = 10, .isBold = true}},
                                {{"indented"}, 0, {}, 90},
                                {{"- item"}},
                                {{"two"}, 8}})),
              "alpha | beta | gamma | delta | eta | zeta | one | large | bold | indented | - item | two");
}

} // namespace
} // namespace orvane::layout
