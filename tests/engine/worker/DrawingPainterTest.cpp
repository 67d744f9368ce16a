#include "worker/DrawingPainter.h"

#include "engine/pdf/Pixels.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace orvane::worker {
namespace {

using document::Shape;

constexpr Emu kPixel(914400 / 200);

Emu pixels(int count) {
    return Emu(count * kPixel.value);
}

Shape shapeAt(int x, int y, int width, int height) {
    Shape shape;
    shape.x = pixels(x);
    shape.y = pixels(y);
    shape.width = pixels(width);
    shape.height = pixels(height);
    return shape;
}

/// A document with one drawing of 20 by 10 pixels, painted.
struct Painted {
    explicit Painted(std::vector<Shape> shapes, bool isPictureAtBest = true)
        : pictures(folder.path()) {
        document::Drawing drawing;
        drawing.width = pixels(20);
        drawing.height = pixels(10);
        drawing.shapes = std::move(shapes);
        drawing.isPictureAtBest = isPictureAtBest;
        document::Figure figure;
        figure.content = drawing;
        document.sections.emplace_back().blocks.push_back({figure});
        paintDrawings(document, pictures);
    }

    const document::Figure& figure() const {
        return std::get<document::Figure>(document.sections.front().blocks.front().value);
    }
    const document::Picture* picture() const { return std::get_if<document::Picture>(&figure().content); }
    pdf::Pixels seen() const { return pdf::readPng(pictures, picture()->id); }

    tests::TemporaryFolder folder;
    PictureStore pictures;
    document::Document document;
};

TEST(DrawingPainter, PaintsBoxesInTheirOrderOnNothing) {
    Shape under = shapeAt(0, 0, 10, 10);
    under.fill = Color{255, 0, 0};
    Shape over = shapeAt(5, 0, 5, 10);
    over.fill = Color{0, 0, 255};
    over.opacity = 0.5;
    const Painted painted({under, over});
    ASSERT_TRUE(painted.picture());
    EXPECT_EQ(painted.picture()->width, pixels(20));
    const pdf::Pixels seen = painted.seen();
    EXPECT_EQ(seen.at(2, 5), "FF0000FF");
    EXPECT_EQ(seen.at(7, 5), "800080FF");
    EXPECT_EQ(seen.at(15, 5).substr(6), "00") << "text behind it is seen";
}

TEST(DrawingPainter, PaintsLinesAsWideAsTheyAre) {
    Shape line = shapeAt(0, 4, 20, 2);
    line.line = document::ShapeLine{Color{0, 0, 0}, pixels(2), document::BorderKind::Single};
    Shape dots = shapeAt(0, 8, 20, 2);
    dots.line = document::ShapeLine{Color{0, 0, 0}, pixels(2), document::BorderKind::Dotted};
    const pdf::Pixels seen = Painted({line, dots}).seen();
    EXPECT_EQ(seen.at(10, 3).substr(6), "00");
    EXPECT_EQ(seen.at(10, 4), "000000FF");
    EXPECT_EQ(seen.at(10, 5), "000000FF");
    EXPECT_EQ(seen.at(10, 6).substr(6), "00");
    EXPECT_EQ(seen.at(1, 9), "000000FF");
    EXPECT_EQ(seen.at(2, 9).substr(6), "00");
}

TEST(DrawingPainter, LeavesDrawingsThatWordProcessorsBear) {
    Shape box = shapeAt(0, 0, 10, 10);
    box.fill = Color{255, 0, 0};
    EXPECT_FALSE(Painted({box}, false).picture());
}

} // namespace
} // namespace orvane::worker
