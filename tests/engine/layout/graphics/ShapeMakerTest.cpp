#include "layout/graphics/ShapeMaker.h"

#include "engine/layout/PageContentBuilder.h"

#include <gmock/gmock.h>

namespace orvane::layout {
namespace {

using document::Shape;
using pdf::tests::PageContentBuilder;
using testing::SizeIs;

/// The shapes of the drawing that all paths of the page make within `box`.
std::optional<ShapedDrawing> shapesIn(const Rect& box, const PageContentBuilder& page,
                                      const GraphicsParameters& parameters = {}) {
    Figure figure;
    figure.box = box;
    for (std::size_t i = 0; i < page.content().paths.size(); ++i)
        figure.paths.push_back(i);
    return shapesOf(figure, page.content(), parameters);
}

TEST(ShapeMaker, TellsPathsAsShapesInTheOrderOfPainting) {
    PageContentBuilder page;
    page.filledRectangle({100, 100, 180, 140}, {200, 220, 240});
    page.line({100, 140}, {180, 100}, 2, {255, 0, 0}, {6, 3});
    const auto shaped = shapesIn({99, 99, 181, 141}, page);
    ASSERT_TRUE(shaped);
    EXPECT_EQ(shaped->box, (Rect{100, 100, 180, 140})) << "the shapes fill their group";
    ASSERT_THAT(shaped->drawing.shapes, SizeIs(2));
    const Shape& ground = shaped->drawing.shapes[0];
    EXPECT_EQ(ground.fill, (Color{200, 220, 240}));
    EXPECT_FALSE(ground.line);
    EXPECT_EQ(ground.width, emuFromPoints(80));
    const Shape& stroke = shaped->drawing.shapes[1];
    EXPECT_FALSE(stroke.fill);
    ASSERT_TRUE(stroke.line);
    EXPECT_EQ(stroke.line->color, (Color{255, 0, 0}));
    EXPECT_EQ(stroke.line->width, emuFromPoints(2));
    EXPECT_EQ(stroke.line->kind, document::BorderKind::Dashed);
    EXPECT_EQ(stroke.segments[0].xy[1], emuFromPoints(40)) << "from the bottom of its own box";
}

TEST(ShapeMaker, CutsARectangleToItsClip) {
    PageContentBuilder page;
    page.filledRectangle({100, 100, 180, 140}, kBlack);
    page.content().paths.back().clip = {120, 100, 160, 140};
    const auto shaped = shapesIn({100, 100, 180, 140}, page);
    ASSERT_TRUE(shaped);
    EXPECT_EQ(shaped->box, (Rect{120, 100, 160, 140}));
}

TEST(ShapeMaker, LeavesWhatIsMoreThanShapesToThePainter) {
    const Rect box{90, 90, 190, 190};
    PageContentBuilder pattern;
    pattern.disk({140, 140}, 40);
    EXPECT_TRUE(shapesIn(box, pattern));
    pattern.content().paths.back().fill->isPattern = true;
    EXPECT_FALSE(shapesIn(box, pattern));

    PageContentBuilder masked;
    masked.disk({140, 140}, 40);
    masked.content().paths.back().isSimplified = true;
    EXPECT_FALSE(shapesIn(box, masked));

    PageContentBuilder cut;
    cut.disk({140, 140}, 40);
    cut.content().paths.back().clip = {100, 100, 140, 180};
    EXPECT_FALSE(shapesIn(box, cut)) << "half a disk";

    PageContentBuilder photo;
    photo.disk({140, 140}, 40);
    photo.picture({120, 120, 160, 160});
    EXPECT_FALSE(shapesIn(box, photo));
}

TEST(ShapeMaker, FillsAShapeWithItsGradient) {
    PageContentBuilder page;
    page.disk({140, 140}, 40);
    pdf::Gradient gradient;
    gradient.from = {140, 100};
    gradient.to = {140, 180};
    gradient.stops = {{0, {255, 0, 0}}, {1, {0, 0, 255}}};
    pdf::FillStyle& fill = *page.content().paths.back().fill;
    fill.isPattern = true;
    fill.gradient = std::make_shared<const pdf::Gradient>(gradient);
    const auto shaped = shapesIn({90, 90, 190, 190}, page);
    ASSERT_TRUE(shaped);
    ASSERT_TRUE(shaped->drawing.shapes.at(0).gradient);
    EXPECT_EQ(shaped->drawing.shapes[0].gradient->angle, 90);
}

TEST(ShapeMaker, LeavesDrawingsOfVeryManyShapesToThePainter) {
    PageContentBuilder page;
    for (int i = 0; i < 6; ++i)
        page.line({100, 100.0 + i}, {180, 110.0 + i});
    GraphicsParameters parameters;
    parameters.shapes.mostShapes = 6;
    EXPECT_TRUE(shapesIn({100, 100, 180, 120}, page, parameters));
    parameters.shapes.mostShapes = 5;
    EXPECT_FALSE(shapesIn({100, 100, 180, 120}, page, parameters));
}

} // namespace
} // namespace orvane::layout
