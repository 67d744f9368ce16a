#include "pictures/PictureJoiner.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace orvane::pictures {
namespace {

using pdf::PaintedPicture;
using Piece = PictureGroup::Piece;

/// How far edges of pieces may be apart: producers round what they place. Units: pixels.
constexpr double kEdgeTolerance = 0.75;
/// The same for small pieces, as a share of their size: lest one pixel pass for a larger one.
constexpr double kEdgeShare = 0.1;
/// As for any picture.
constexpr std::int64_t kMaxPixels = 300'000'000;

/// The steps from pixel to pixel on the page, and where the first one's corner is.
struct Raster {
    explicit Raster(const PaintedPicture& picture)
        : step{picture.matrix.a / picture.width,
               picture.matrix.b / picture.width,
               picture.matrix.c / picture.height,
               picture.matrix.d / picture.height,
               picture.matrix.e,
               picture.matrix.f} {}

    /// A place on the page in pixels from the corner.
    Point pixelAt(Point place) const {
        const double x = place.x - step.e;
        const double y = place.y - step.f;
        const double determinant = step.determinant();
        return {(x * step.d - y * step.c) / determinant, (y * step.a - x * step.b) / determinant};
    }

    Matrix step;
};

/// A rectangle of pieces that are joined already.
struct Block {
    double x = 0; ///< pixels, in the raster of the run's first picture
    double y = 0;
    int width = 0;
    int height = 0;
    std::vector<Piece> pieces; ///< places within the block
};

bool areAlike(const PaintedPicture& a, const PaintedPicture& b) {
    return a.isStencil == b.isStencil && a.coding == b.coding && a.components == b.components && a.bits == b.bits;
}

double toleranceOf(int pixels) {
    return std::min(kEdgeTolerance, kEdgeShare * pixels);
}

/// Whether the pixels of `b` are as large as those of `raster` and lie in the same direction.
bool hasSameSteps(const Raster& raster, const PaintedPicture& b) {
    const Point origin = raster.pixelAt({b.matrix.e, b.matrix.f});
    const Point right = raster.pixelAt({b.matrix.e + b.matrix.a, b.matrix.f + b.matrix.b});
    const Point below = raster.pixelAt({b.matrix.e + b.matrix.c, b.matrix.f + b.matrix.d});
    const double sideways = toleranceOf(b.width);
    const double downwards = toleranceOf(b.height);
    return std::abs(right.x - origin.x - b.width) <= sideways && std::abs(right.y - origin.y) <= sideways &&
           std::abs(below.x - origin.x) <= downwards && std::abs(below.y - origin.y - b.height) <= downwards;
}

/// Puts block `next` behind `block` where it continues it; along the rows or down the columns.
bool appendRight(Block& block, const Block& next) {
    if (block.height != next.height || std::abs(next.y - block.y) > toleranceOf(next.height) ||
        std::abs(next.x - block.x - block.width) > toleranceOf(next.width))
        return false;
    for (Piece piece : next.pieces) {
        piece.x += block.width;
        block.pieces.push_back(piece);
    }
    block.width += next.width;
    return true;
}

bool appendBelow(Block& block, const Block& next) {
    if (block.width != next.width || std::abs(next.x - block.x) > toleranceOf(next.width) ||
        std::abs(next.y - block.y - block.height) > toleranceOf(next.height))
        return false;
    for (Piece piece : next.pieces) {
        piece.y += block.height;
        block.pieces.push_back(piece);
    }
    block.height += next.height;
    return true;
}

/// Sorts along one axis within bands of the other, and joins neighbours.
std::vector<Block> joinNeighbours(std::vector<Block> blocks, double Block::*along, double Block::*band,
                                  bool (*append)(Block&, const Block&)) {
    std::sort(blocks.begin(), blocks.end(), [&](const Block& a, const Block& b) {
        const long bandOfA = std::lround(a.*band);
        const long bandOfB = std::lround(b.*band);
        return bandOfA != bandOfB ? bandOfA < bandOfB : a.*along < b.*along;
    });
    std::vector<Block> joined;
    for (const Block& block : blocks)
        if (joined.empty() || !append(joined.back(), block))
            joined.push_back(block);
    return joined;
}

PictureGroup groupOf(const Block& block, const Raster& raster) {
    const Matrix& step = raster.step;
    const Point corner{step.a * block.x + step.c * block.y + step.e, step.b * block.x + step.d * block.y + step.f};
    return {
        block.pieces,
        block.width,
        block.height,
        {step.a * block.width, step.b * block.width, step.c * block.height, step.d * block.height, corner.x, corner.y}};
}

PictureGroup alone(const std::vector<PaintedPicture>& painted, std::size_t index) {
    const PaintedPicture& picture = painted[index];
    return {{{index, 0, 0}}, picture.width, picture.height, picture.matrix};
}

/// Joins the pictures from `first` up to `last`, which are alike and of one scale.
std::vector<PictureGroup> joinRun(const std::vector<PaintedPicture>& painted, std::size_t first, std::size_t last) {
    const Raster raster(painted[first]);
    std::vector<Block> blocks;
    for (std::size_t i = first; i < last; ++i) {
        const Point corner = raster.pixelAt({painted[i].matrix.e, painted[i].matrix.f});
        blocks.push_back({corner.x, corner.y, painted[i].width, painted[i].height, {{i, 0, 0}}});
    }
    blocks = joinNeighbours(std::move(blocks), &Block::x, &Block::y, appendRight);
    blocks = joinNeighbours(std::move(blocks), &Block::y, &Block::x, appendBelow);
    std::vector<PictureGroup> groups;
    for (const Block& block : blocks) {
        if (std::int64_t{block.width} * block.height <= kMaxPixels)
            groups.push_back(groupOf(block, raster));
        else
            for (const Piece& piece : block.pieces)
                groups.push_back(alone(painted, piece.index));
    }
    return groups;
}

std::size_t firstPainted(const PictureGroup& group) {
    std::size_t first = group.pieces.front().index;
    for (const Piece& piece : group.pieces)
        first = std::min(first, piece.index);
    return first;
}

} // namespace

std::vector<PictureGroup> joinPieces(const std::vector<PaintedPicture>& painted) {
    std::map<std::string, int> paintings;
    for (const PaintedPicture& picture : painted)
        ++paintings[picture.identity];
    const auto canBePiece = [&](const PaintedPicture& picture) {
        const double area = std::abs(picture.matrix.determinant());
        return paintings[picture.identity] == 1 && !picture.hasTransparency && std::isfinite(area) && area > 0 &&
               picture.width > 0 && picture.height > 0;
    };
    std::vector<PictureGroup> groups;
    for (std::size_t first = 0; first < painted.size();) {
        std::size_t last = first + 1;
        if (!canBePiece(painted[first])) {
            groups.push_back(alone(painted, first));
            first = last;
            continue;
        }
        const Raster raster(painted[first]);
        while (last < painted.size() && canBePiece(painted[last]) && areAlike(painted[first], painted[last]) &&
               hasSameSteps(raster, painted[last]))
            ++last;
        for (PictureGroup& group : joinRun(painted, first, last))
            groups.push_back(std::move(group));
        first = last;
    }
    std::stable_sort(groups.begin(), groups.end(),
                     [](const PictureGroup& a, const PictureGroup& b) { return firstPainted(a) < firstPainted(b); });
    return groups;
}

} // namespace orvane::pictures
