#include "layout/page/ColumnEdges.h"

#include <gtest/gtest.h>

namespace orvane::layout {
namespace {

Line lineFrom(double left, double right) {
    Line line;
    line.box = {left, 0, right, 12};
    line.fontSize = 10;
    return line;
}

TEST(ColumnEdges, EvensTheColumnWhereLinesInTheMiddleAloneReachFarthest) {
    struct Row {
        std::vector<Line> lines;
        double right;
        const char* why;
    };
    const ColumnSpan span{50, 400};
    const Row rows[] = {
        {{lineFrom(200, 400), lineFrom(50, 300)}, 550, "a title"},
        {{lineFrom(200, 400), lineFrom(50, 400)}, 400, "a line that begins at the edge fills the column"},
        {{lineFrom(80, 520)}, 400, "so does one that begins near it"},
        {{lineFrom(220, 400), lineFrom(50, 300)}, 400, "not in the middle"},
        {{lineFrom(250, 350)}, 400, "other lines of the document reach farther"},
        {{}, 400, "no lines"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(evenedAtMiddle(span, row.lines, 600, {}).right, row.right) << row.why;
}

} // namespace
} // namespace orvane::layout
