#include "layout/graphics/AlikeShapes.h"

#include "layout/graphics/RuleShapes.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::Shape;
using testing::SizeIs;

constexpr Color kRed{255, 0, 0};
constexpr Color kBlue{0, 0, 255};

Shape box(const Rect& at, Color color, double opacity = 1) {
    Ground ground;
    ground.box = at;
    ground.color = color;
    ground.opacity = opacity;
    return shapeOf(ground);
}

Shape level(double y, double from, double to, Color color = kBlack) {
    Rule rule;
    rule.position = y;
    rule.from = from;
    rule.to = to;
    rule.color = color;
    return shapesOf(rule).front();
}

TEST(AlikeShapes, AreOneShapeWithAllOutlines) {
    const std::vector<Shape> joined = joinAlike(
        {box({100, 100, 110, 110}, kRed), box({130, 90, 140, 100}, kRed), box({100, 150, 110, 160}, kRed)}, {});
    ASSERT_THAT(joined, SizeIs(1));
    const Shape& shape = joined.front();
    EXPECT_EQ(shape.x, emuFromPoints(100));
    EXPECT_EQ(shape.y, emuFromPoints(90));
    EXPECT_EQ(shape.width, emuFromPoints(40));
    EXPECT_EQ(shape.height, emuFromPoints(70));
    ASSERT_THAT(shape.segments, SizeIs(15)) << "three boxes";
    EXPECT_EQ(shape.segments[0].xy[1], emuFromPoints(10)) << "the first is lower than the second";
    EXPECT_EQ(shape.segments[5].xy[0], emuFromPoints(30));
    EXPECT_EQ(shape.segments[5].xy[1], Emu(0));
}

TEST(AlikeShapes, StayApartWhereThePaintingOrderIsSeen) {
    struct Row {
        std::vector<Shape> shapes;
        std::size_t joined;
        const char* why;
    };
    const Rect low{0, 0, 10, 10}, over{5, 5, 15, 15}, beside{20, 20, 30, 30};
    const Row rows[] = {
        {{box(low, kRed), box(over, kBlue), box(low, kRed)}, 3, "blue would come out on top"},
        {{box(low, kRed), box(over, kBlue), box(beside, kRed)}, 2, "nothing lies between"},
        {{box(low, kRed), box(over, kRed)}, 2, "where outlines cover each other a fill has a hole"},
        {{box(low, kRed), box(over, kRed), box(low, kRed), box(beside, kRed)}, 3, "the last may go with any"},
        {{box(low, kRed), box(beside, kRed, 0.5)}, 2, "one is fainter"},
        {{level(1, 0, 9), level(1, 5, 20), level(2, 0, 9)}, 1, "lines have no holes"},
        {{level(1, 0, 9), level(1, 5, 20, kRed), level(1, 0, 9)}, 3, "the last black line covers the red one"},
    };
    for (const Row& row : rows)
        EXPECT_THAT(joinAlike(row.shapes, {}), SizeIs(row.joined)) << row.why;
}

TEST(AlikeShapes, HoldNoMoreSegmentsThanOneShapeMay) {
    GraphicsParameters::Shapes limits;
    limits.mostSegments = 7;
    EXPECT_THAT(joinAlike({level(1, 0, 9), level(2, 0, 9), level(3, 0, 9), level(4, 0, 9)}, limits), SizeIs(2));
}

} // namespace
} // namespace orvane::layout
