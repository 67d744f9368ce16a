#include "worker/DrawingPainter.h"

#include "engine/pdf/Pixels.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <ctime>

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

/// A document with one drawing, painted. Units: pixels.
struct Painted {
    explicit Painted(std::vector<Shape> shapes, bool isPictureAtBest = true, int width = 20, int height = 10)
        : pictures(folder.path()) {
        document::Drawing drawing;
        drawing.width = pixels(width);
        drawing.height = pixels(height);
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

TEST(DrawingPainter, LetsFaintBoxesBeSeenOverWhatTheyLieOn) {
    std::vector<Shape> shapes;
    for (int i = 0; i < 3; ++i) {
        shapes.push_back(shapeAt(i, 0, 10, 10));
        shapes.back().fill = Color{0, 0, 255};
        shapes.back().opacity = 0.5;
    }
    shapes.insert(shapes.begin() + 1, shapeAt(2, 0, 2, 10));
    shapes[1].fill = Color{255, 0, 0};
    const pdf::Pixels seen = Painted(shapes).seen();
    EXPECT_EQ(seen.at(0, 5), "0000FF80");
    EXPECT_EQ(seen.at(1, 5), "0000FFC0");
    EXPECT_EQ(seen.at(2, 5), "4000C0FF") << "two faint boxes above the red one, which hides the first";
    EXPECT_EQ(seen.at(11, 5), "0000FF80");
}

TEST(DrawingPainter, TakesTheTimeOfWhatIsSeen) {
    std::vector<Shape> shapes;
    for (int i = 0; i < 3000; ++i) {
        shapes.push_back(shapeAt(i / 10, i / 10, 1600 - i / 10, 2200 - i / 10));
        shapes.back().fill = Color{0, 0, static_cast<std::uint8_t>(i % 256)};
    }
    const std::clock_t start = std::clock();
    const pdf::Pixels seen = Painted(shapes, true, 1600, 2200).seen();
    EXPECT_LT(static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC, 3)
        << "each pixel of each takes ten times that";
    EXPECT_EQ(seen.at(0, 2000), "000009FF");
    EXPECT_EQ(seen.at(1599, 2199), "0000B7FF");
}

TEST(DrawingPainter, LeavesDrawingsThatWordProcessorsBear) {
    Shape box = shapeAt(0, 0, 10, 10);
    box.fill = Color{255, 0, 0};
    EXPECT_FALSE(Painted({box}, false).picture());
}

} // namespace
} // namespace orvane::worker
