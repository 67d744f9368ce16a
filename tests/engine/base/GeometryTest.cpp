#include "base/Geometry.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr Rect kBox{10, 20, 30, 60};

TEST(Rect, KnowsItsMeasures) {
    EXPECT_DOUBLE_EQ(kBox.width(), 20);
    EXPECT_DOUBLE_EQ(kBox.height(), 40);
    EXPECT_DOUBLE_EQ(kBox.area(), 800);
    EXPECT_DOUBLE_EQ(kBox.centerX(), 20);
    EXPECT_DOUBLE_EQ(kBox.centerY(), 40);
}

TEST(Rect, IsEmptyWithoutAnInside) {
    EXPECT_TRUE(Rect{}.isEmpty());
    EXPECT_TRUE((Rect{10, 0, 10, 5}.isEmpty())) << "a line";
    EXPECT_TRUE((Rect{10, 0, 5, -5}.isEmpty())) << "inside out";
    EXPECT_DOUBLE_EQ((Rect{10, 10, 5, 5}.area()), 0) << "not 25";
    EXPECT_FALSE(kBox.isEmpty());
}

TEST(Rect, ContainsItsEdges) {
    EXPECT_TRUE(kBox.contains(Point{10, 60}));
    EXPECT_FALSE(kBox.contains(Point{9.9, 40}));
    EXPECT_TRUE(kBox.contains(kBox));
    EXPECT_FALSE(kBox.contains(kBox.inflated(0.1)));
}

TEST(Rect, IntersectsOnlyWhereAnInsideIsShared) {
    EXPECT_TRUE(kBox.intersects({29, 59, 100, 100}));
    EXPECT_FALSE(kBox.intersects({30, 20, 40, 60})) << "neighbours share an edge";
    EXPECT_EQ(kBox.intersected({25, 0, 100, 30}), (Rect{25, 20, 30, 30}));
    EXPECT_TRUE(kBox.intersected({40, 0, 50, 10}).isEmpty());
}

TEST(Rect, IsUnitedWithoutTheEmpty) {
    EXPECT_EQ(kBox.united({0, 50, 15, 70}), (Rect{0, 20, 30, 70}));
    EXPECT_EQ(kBox.united({}), kBox) << "an empty one does not pull in the origin";
    EXPECT_EQ(Rect{}.united(kBox), kBox);
}

TEST(Overlap, IsTheSharedLength) {
    EXPECT_DOUBLE_EQ(overlap(0, 10, 4, 20), 6);
    EXPECT_DOUBLE_EQ(overlap(0, 10, 2, 3), 1);
    EXPECT_DOUBLE_EQ(overlap(0, 10, 10, 20), 0);
    EXPECT_DOUBLE_EQ(overlap(0, 10, 50, 60), 0);
}

TEST(Matrix, MapsPoints) {
    EXPECT_EQ(Matrix{}.apply({3, 4}), (Point{3, 4}));
    const Matrix scaledAndMoved{2, 0, 0, 3, 10, 20};
    EXPECT_EQ(scaledAndMoved.apply({1, 1}), (Point{12, 23}));
    const Matrix quarterTurn{0, 1, -1, 0, 0, 0};
    EXPECT_EQ(quarterTurn.apply({1, 0}), (Point{0, 1}));
    EXPECT_DOUBLE_EQ(scaledAndMoved.determinant(), 6);
}

TEST(Matrix, MapsABoxToTheBoxAround) {
    const Matrix quarterTurn{0, 1, -1, 0, 0, 0};
    EXPECT_EQ(quarterTurn.applyToBox({1, 2, 5, 4}), (Rect{-4, 1, -2, 5}));
    const Matrix mirrored{-1, 0, 0, 1, 0, 0};
    EXPECT_EQ(mirrored.applyToBox({1, 2, 5, 4}), (Rect{-5, 2, -1, 4})) << "still the right way round";
}

} // namespace
} // namespace orvane
