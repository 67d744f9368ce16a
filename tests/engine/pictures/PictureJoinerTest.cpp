#include "pictures/PictureJoiner.h"

#include <gtest/gtest.h>

namespace orvane::pictures {
namespace {

using pdf::PaintedPicture;

/// A picture of so many pixels at one pixel a point, its top left corner at (x, y).
PaintedPicture picture(const std::string& identity, int width, int height, double x, double y) {
    PaintedPicture painted;
    painted.identity = identity;
    painted.width = width;
    painted.height = height;
    painted.matrix = {static_cast<double>(width), 0, 0, static_cast<double>(height), x, y};
    painted.components = 3;
    painted.bits = 8;
    return painted;
}

TEST(PictureJoiner, PutsStripsTogether) {
    const auto groups =
        joinPieces({picture("1", 100, 16, 50, 20), picture("2", 100, 16, 50, 36.2), picture("3", 100, 5, 50, 52.1)});
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].width, 100);
    EXPECT_EQ(groups[0].height, 37);
    ASSERT_EQ(groups[0].pieces.size(), 3u);
    EXPECT_EQ(groups[0].pieces[2].index, 2u);
    EXPECT_EQ(groups[0].pieces[2].y, 32);
    EXPECT_EQ(groups[0].matrix, (Matrix{100, 0, 0, 37, 50, 20}));
}

TEST(PictureJoiner, PutsTilesTogetherInWhicheverOrderTheyArePainted) {
    const auto groups = joinPieces({picture("4", 8, 4, 10, 10), picture("2", 8, 10, 10, 0), picture("1", 10, 10, 0, 0),
                                    picture("3", 10, 4, 0, 10)});
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].width, 18);
    EXPECT_EQ(groups[0].height, 14);
    EXPECT_EQ(groups[0].pieces.size(), 4u);
    EXPECT_EQ(groups[0].pieces[0].index, 2u) << "row by row";
}

TEST(PictureJoiner, LeavesApartWhatIsNoPieceOfOnePicture) {
    PaintedPicture gray = picture("2", 100, 16, 0, 16);
    gray.components = 1;
    PaintedPicture masked = picture("2", 100, 16, 0, 16);
    masked.hasTransparency = true;
    PaintedPicture smaller = picture("2", 100, 16, 0, 16);
    smaller.matrix = {50, 0, 0, 8, 0, 16};
    struct Row {
        PaintedPicture second;
        const char* why;
    };
    const Row rows[] = {
        {picture("2", 100, 16, 0, 20), "there is a gap"},
        {picture("2", 90, 16, 0, 16), "one is narrower"},
        {picture("1", 100, 16, 0, 16), "it is the same object once more"},
        {gray, "other pixels"},
        {masked, "its mask is its own"},
        {smaller, "another scale"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(joinPieces({picture("1", 100, 16, 0, 0), row.second}).size(), 2u) << row.why;
}

TEST(PictureJoiner, KeepsPicturesOfNoSizeAlone) {
    PaintedPicture flat = picture("1", 10, 10, 0, 0);
    flat.matrix = {10, 0, 0, 0, 0, 0};
    EXPECT_EQ(joinPieces({flat, picture("2", 10, 10, 0, 0)}).size(), 2u);
    EXPECT_TRUE(joinPieces({}).empty());
}

} // namespace
} // namespace orvane::pictures
