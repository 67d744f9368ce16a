#include "layout/assembly/TabStopFinder.h"

#include "engine/layout/DraftSupport.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using document::TabAlignment;

std::vector<document::TabStop> stopsOf(std::vector<Line> lines) {
    const DraftBlock block = tests::makeBlock(tests::makeParagraph(std::move(lines)));
    return findTabStops(*block.paragraph(), {});
}

/// Moves the words from `first` on so that the last of them ends at `right`.
void endAt(Line& line, std::size_t first, double right) {
    const double by = right - line.words.back().box.right;
    for (std::size_t i = first; i < line.words.size(); ++i)
        line.words[i].box = {line.words[i].box.left + by, line.words[i].box.top, line.words[i].box.right + by,
                             line.words[i].box.bottom};
}

TEST(TabStopFinder, PutsAStopWhereTheWordsStand) {
    const auto stops = stopsOf({tests::makeLine("Name\tMiller", 72, 100)});
    ASSERT_EQ(stops.size(), 1u);
    EXPECT_EQ(stops[0].position, twipsFromPoints(40));
    EXPECT_EQ(stops[0].alignment, TabAlignment::Start);
}

TEST(TabStopFinder, JoinsTheStopsOfSeveralLines) {
    EXPECT_EQ(stopsOf({tests::makeLine("Name\tMiller", 72, 100), tests::makeLine("Town\tParis", 72, 112)}).size(), 1u);
}

TEST(TabStopFinder, AlignsAtTheEndWhatEndsAtTheEdge) {
    Line line = tests::makeLine("Left\tright side", 72, 100);
    endAt(line, 1, 522);
    const auto stops = stopsOf({line});
    ASSERT_EQ(stops.size(), 1u);
    EXPECT_EQ(stops[0].alignment, TabAlignment::End);
    EXPECT_EQ(stops[0].position, twipsFromPoints(523 - 72));
}

TEST(TabStopFinder, AlignsAtTheEndWhatEndsBeyondTheEdge) {
    Line line = tests::makeLine("Left\tright side", 72, 100);
    endAt(line, 1, 560);
    const auto stops = stopsOf({line});
    ASSERT_EQ(stops.size(), 1u);
    EXPECT_EQ(stops[0].alignment, TabAlignment::End);
    EXPECT_EQ(stops[0].position, twipsFromPoints(560 - 72));
    EXPECT_EQ(stopsOf({line, line}).at(0).alignment, TabAlignment::Start) << "columns of text set with tabulators";
}

TEST(TabStopFinder, StartsAtTheStopWhatFillsItsLineAndGoesOnInTheNext) {
    Line full =
        tests::makeLine("4.1\ttext that fills its line right up to the edge of the column and goes on", 72, 100);
    endAt(full, full.words.size() - 1, 522);
    const double start = full.words[1].box.left - 72;
    const auto stops = stopsOf({full, tests::makeLine("in the next", 72, 112)});
    ASSERT_EQ(stops.size(), 1u);
    EXPECT_EQ(stops[0].alignment, TabAlignment::Start);
    EXPECT_EQ(stops[0].position, twipsFromPoints(start));

    ParagraphDraft ended = tests::makeParagraph({full, tests::makeLine("and another", 72, 112)});
    ended.hardBreaks = {0};
    const DraftBlock block = tests::makeBlock(std::move(ended));
    EXPECT_EQ(findTabStops(*block.paragraph(), {}).at(0).alignment, TabAlignment::End) << "the author ended the line";

    Line marked = tests::makeLine("C-c C-n\t[Command]", 72, 100);
    endAt(marked, 2, 522);
    EXPECT_EQ(stopsOf({marked, tests::makeLine("what it does", 72, 112)}).at(0).alignment, TabAlignment::End)
        << "a note set against the edge";
}

TEST(TabStopFinder, CentersWhatStandsInTheMiddle) {
    Line line = tests::makeLine("Left\tmiddle", 72, 100);
    endAt(line, 1, (523 + 72) / 2.0 + 15);
    const auto stops = stopsOf({line});
    ASSERT_EQ(stops.size(), 1u);
    EXPECT_EQ(stops[0].alignment, TabAlignment::Center);
    EXPECT_EQ(stops[0].position, twipsFromPoints((523 - 72) / 2.0));
}

TEST(TabStopFinder, KeepsLeaders) {
    Line line = tests::makeLine("Chapter\t12", 72, 100);
    line.words[1].leaderBefore = document::TabLeader::Dots;
    endAt(line, 1, 400);
    const auto stops = stopsOf({line});
    ASSERT_EQ(stops.size(), 1u);
    EXPECT_EQ(stops[0].leader, document::TabLeader::Dots);
    EXPECT_EQ(stops[0].alignment, TabAlignment::End);
    EXPECT_EQ(stops[0].position, twipsFromPoints(400 - 72));
}

TEST(TabStopFinder, TakesAHangingIndentAsAStop) {
    EXPECT_TRUE(stopsOf({tests::makeLine("a)\tfirst line", 72, 100), tests::makeLine("second", 102, 112)}).empty());
}

} // namespace
} // namespace orvane::layout
