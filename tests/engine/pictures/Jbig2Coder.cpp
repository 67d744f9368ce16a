#include "Jbig2Coder.h"

#include "BitWriter.h"

namespace orvane::pictures {
namespace {

/// Segment types. Source: ITU-T T.88, 7.3.
constexpr int kPatternDictionary = 16;
constexpr int kHalftoneRegion = 22;
constexpr int kGenericRegion = 38;
constexpr int kPageInformation = 48;

constexpr int kFaxCoded = 1; ///< a flag of dictionaries and regions

std::uint32_t sizeOf(const std::string& text) {
    return static_cast<std::uint32_t>(text.size());
}

struct Segment {
    std::uint32_t number;
    int type;
    std::string refersTo; ///< the numbers of other segments
    std::uint32_t page;   ///< 0 for one that all share
    std::string data;
};

std::string write(const Segment& segment) {
    BitWriter bits;
    bits.put(segment.number, 32);
    bits.put(static_cast<std::uint32_t>(segment.type), 8);
    bits.put(sizeOf(segment.refersTo), 3);
    bits.put(0, 5);
    std::string bytes = bits.bytes() + segment.refersTo;
    BitWriter rest;
    rest.put(segment.page, 8);
    rest.put(sizeOf(segment.data), 32);
    return bytes + rest.bytes() + segment.data;
}

std::string pageInformation(std::uint32_t width, std::uint32_t height) {
    BitWriter bits;
    bits.put(width, 32);
    bits.put(height, 32);
    bits.put(0, 32); // resolution: not known
    bits.put(0, 32);
    bits.put(0, 8); // white to begin with
    bits.put(0, 16);
    return bits.bytes();
}

/// Where a region stands: at the page's top left corner.
std::string regionInformation(std::uint32_t width, std::uint32_t height) {
    BitWriter bits;
    bits.put(width, 32);
    bits.put(height, 32);
    bits.put(0, 32);
    bits.put(0, 32);
    bits.put(0, 8); // laid over what is there
    return bits.bytes();
}

std::string faxOf(const Raster& rows) {
    return codeFax(rows, {});
}

/// One pattern of white and the tile, side by side.
std::string patternDictionary(const Raster& tile) {
    Raster both;
    for (const std::string& row : tile)
        both.push_back(std::string(row.size(), '.') + row);
    BitWriter bits;
    bits.put(kFaxCoded, 8);
    bits.put(sizeOf(tile.front()), 8);
    bits.put(static_cast<std::uint32_t>(tile.size()), 8);
    bits.put(1, 32); // the number of the last pattern
    return bits.bytes() + faxOf(both);
}

std::string halftoneRegion(const Raster& tile, const Raster& tiles) {
    Raster plane; // one bit a tile
    for (const std::string& row : tiles) {
        plane.emplace_back();
        for (const char digit : row)
            plane.back() += digit == '1' ? '#' : '.';
    }
    const std::uint32_t columns = sizeOf(tiles.front());
    const auto rows = static_cast<std::uint32_t>(tiles.size());
    BitWriter bits;
    bits.put(kFaxCoded, 8);
    bits.put(columns, 32);
    bits.put(rows, 32);
    bits.put(0, 32); // the grid's corner
    bits.put(0, 32);
    bits.put(sizeOf(tile.front()) << 8, 16); // its step, in 256ths of a pixel
    bits.put(0, 16);
    return regionInformation(columns * sizeOf(tile.front()), rows * static_cast<std::uint32_t>(tile.size())) +
           bits.bytes() + faxOf(plane);
}

} // namespace

Jbig2Segments codeJbig2(const Raster& rows) {
    const std::uint32_t width = sizeOf(rows.front());
    const auto height = static_cast<std::uint32_t>(rows.size());
    const std::string region = regionInformation(width, height) + std::string(1, kFaxCoded) + faxOf(rows);
    return {{},
            write({0, kPageInformation, "", 1, pageInformation(width, height)}) +
                write({1, kGenericRegion, "", 1, region})};
}

Jbig2Segments codeTiledJbig2(const Raster& tile, const Raster& tiles) {
    const std::uint32_t width = sizeOf(tiles.front()) * sizeOf(tile.front());
    const auto height = static_cast<std::uint32_t>(tiles.size() * tile.size());
    return {write({0, kPatternDictionary, "", 0, patternDictionary(tile)}),
            write({1, kPageInformation, "", 1, pageInformation(width, height)}) +
                write({2, kHalftoneRegion, std::string(1, '\0'), 1, halftoneRegion(tile, tiles)})};
}

} // namespace orvane::pictures
