#pragma once

#include "base/PictureData.h"
#include "base/PictureStore.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::pdf {

/// A PNG's pixels as red, green, blue, opacity.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba;

    /// "RRGGBBAA" of one pixel.
    std::string at(int x, int y) const;
};

/// Fails the test for what is no PNG.
Pixels readPng(const std::vector<std::byte>& bytes);
Pixels readPng(const PictureStore& store, PictureId id);

/// A stored picture's bytes.
std::string bytesOf(const PictureStore& store, PictureId id);

} // namespace orvane::pdf
