#include "layout/graphics/GradientMaker.h"

#include "engine/layout/PageContentBuilder.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::GradientKind;
using pdf::tests::PageContentBuilder;
using testing::SizeIs;

constexpr Color kRed{255, 0, 0}, kBlue{0, 0, 255};

/// A shading from red to blue.
pdf::Gradient redToBlue(pdf::GradientKind kind, Point from, Point to) {
    pdf::Gradient gradient;
    gradient.kind = kind;
    gradient.from = from;
    gradient.to = to;
    gradient.stops = {{0, kRed}, {1, kBlue}};
    return gradient;
}

std::optional<document::Gradient> gradientOf(pdf::Path path, const pdf::Gradient& gradient) {
    path.fill->isPattern = true;
    path.fill->gradient = std::make_shared<const pdf::Gradient>(gradient);
    return gradientIn(path.box, path, {});
}

std::optional<document::Gradient> inRectangle(const Rect& box, const pdf::Gradient& gradient) {
    PageContentBuilder page;
    page.filledRectangle(box, kBlack);
    return gradientOf(page.content().paths.back(), gradient);
}

TEST(GradientMaker, TellsTheWayOfAnAxis) {
    struct Row {
        Point from, to;
        double angle;
        const char* why;
    };
    const Row rows[] = {
        {{100, 150}, {200, 150}, 0, "rightwards"},
        {{150, 100}, {150, 200}, 90, "downwards"},
        {{200, 150}, {100, 150}, 180, "leftwards"},
        {{150, 200}, {150, 100}, 270, "upwards"},
        {{100, 100}, {200, 200}, 45, "from corner to corner"},
    };
    for (const Row& row : rows) {
        const auto gradient = inRectangle({100, 100, 200, 200}, redToBlue(pdf::GradientKind::Axial, row.from, row.to));
        ASSERT_TRUE(gradient) << row.why;
        EXPECT_EQ(gradient->kind, GradientKind::Linear);
        EXPECT_NEAR(gradient->angle, row.angle, 1e-9) << row.why;
        ASSERT_THAT(gradient->stops, SizeIs(2)) << row.why;
        EXPECT_EQ(gradient->stops[0].color, kRed) << row.why;
        EXPECT_EQ(gradient->stops[1].color, kBlue) << row.why;
    }
}

TEST(GradientMaker, CutsAnAxisThatIsLongerThanItsShape) {
    const auto gradient =
        inRectangle({125, 100, 175, 120}, redToBlue(pdf::GradientKind::Axial, {100, 100}, {200, 100}));
    ASSERT_TRUE(gradient);
    ASSERT_THAT(gradient->stops, SizeIs(2));
    EXPECT_EQ(gradient->stops[0].color, (Color{191, 0, 64}));
    EXPECT_EQ(gradient->stops[1].color, (Color{64, 0, 191}));
}

TEST(GradientMaker, GoesOnBeyondAnAxisThatDoes) {
    pdf::Gradient source = redToBlue(pdf::GradientKind::Axial, {125, 100}, {175, 100});
    EXPECT_FALSE(inRectangle({100, 100, 200, 120}, source)) << "the ends of the shape are bare";
    source.extendsBefore = source.extendsAfter = true;
    const auto gradient = inRectangle({100, 100, 200, 120}, source);
    ASSERT_TRUE(gradient);
    ASSERT_THAT(gradient->stops, SizeIs(4));
    EXPECT_EQ(gradient->stops[1].position, 0.25);
    EXPECT_EQ(gradient->stops[1].color, kRed);
    EXPECT_EQ(gradient->stops[2].position, 0.75);
}

TEST(GradientMaker, TellsCirclesAroundTheMiddle) {
    PageContentBuilder page;
    page.disk({150, 150}, 50);
    pdf::Gradient source = redToBlue(pdf::GradientKind::Radial, {150, 150}, {150, 150});
    source.toRadius = 50;
    const auto gradient = gradientOf(page.content().paths.back(), source);
    ASSERT_TRUE(gradient);
    EXPECT_EQ(gradient->kind, GradientKind::Radial);
    ASSERT_THAT(gradient->stops, SizeIs(3));
    EXPECT_EQ(gradient->stops[0].color, kRed) << "in the middle";
    EXPECT_NEAR(gradient->stops[1].position, 0.7071, 1e-3) << "its edge, against the corner of its box";
    EXPECT_EQ(gradient->stops[1].color, kBlue);
    EXPECT_FALSE(inRectangle({100, 100, 200, 200}, source)) << "the corners of a square are bare";
    EXPECT_FALSE(inRectangle({100, 100, 300, 200}, source)) << "no square";
    source.from = {130, 130};
    EXPECT_FALSE(gradientOf(page.content().paths.back(), source)) << "a light from aside";
}

TEST(GradientMaker, LeavesManyColoursToThePainter) {
    pdf::Gradient source = redToBlue(pdf::GradientKind::Axial, {100, 100}, {200, 100});
    source.stops.clear();
    for (int i = 0; i <= 10; ++i)
        source.stops.push_back({0.1 * i, i % 2 == 0 ? kRed : kBlue});
    EXPECT_FALSE(inRectangle({100, 100, 200, 120}, source));
}

} // namespace
} // namespace orvane::layout
