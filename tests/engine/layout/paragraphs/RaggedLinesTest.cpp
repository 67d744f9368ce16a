#include "layout/paragraphs/RaggedLines.h"

#include "engine/layout/LineArt.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

using tests::makeLine;

/// A column 200 points wide of lines that leave so much room behind a next word of 20 points, each line beginning with
/// `word`.
double roomOf(const std::vector<double>& rooms, const char* word) {
    std::vector<Line> lines;
    std::vector<LineMeasure> measures;
    double y = 100;
    for (const double room : rooms) {
        lines.push_back(makeLine(std::string(word) + " and four more words", 50, y += 12));
        LineMeasure& measure = measures.emplace_back();
        measure.blank = 2.5;
        measure.firstUnit = 20;
        measure.endGap = room + measure.blank + measure.firstUnit;
        measure.width = 200 - measure.endGap;
        measure.startsLowerCase = word[0] >= 'a';
    }
    return findRaggedRoom(lines, measures, ParagraphParameters::Paragraphs{}) * lines.front().fontSize;
}

TEST(RaggedLines, LearnsWhatRaggedTextLeaves) {
    EXPECT_NEAR(roomOf({-3, 6, -9, -1, 12, -5, 4, -2, 9, -7, -4, 0}, "so"), 9, 0.01);
}

TEST(RaggedLines, LearnsNothingFromFullLines) {
    EXPECT_EQ(roomOf({-3, -6, -9, -1, -12, -5, -4, -2, -9, -7}, "so"), 0);
}

TEST(RaggedLines, LearnsNothingFromFewLines) {
    EXPECT_EQ(roomOf({-3, 6, -9}, "so"), 0);
}

TEST(RaggedLines, LearnsNothingFromWhatIsNoProse) {
    EXPECT_EQ(roomOf({-3, 6, -9, -1, 12, -5, 4, -2, 9, -7, -4, 0}, "Each"), 0) << "may be sentences of their own";
    EXPECT_EQ(roomOf({-3, 90, 80, 6, 100, 70, 4, 120, 9, 60, -4, 0}, "int"), 0) << "lines of code are of any length";
}

} // namespace
} // namespace orvane::layout
