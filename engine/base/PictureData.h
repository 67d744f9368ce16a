#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace orvane {

/// The file formats in which pictures travel inside the engine; every writer takes both.
enum class PictureFormat { Jpeg, Png };

/// One picture as a whole file of its format: a JPEG as it stood in the source, untouched, or a PNG (with alpha where the
/// source has a mask).
struct PictureData {
    PictureFormat format = PictureFormat::Png;
    int pixelWidth = 0;
    int pixelHeight = 0;
    std::vector<std::byte> bytes;
};

using PictureDataPtr = std::shared_ptr<const PictureData>;

/// Names a picture of a PictureStore. Value 0 is no picture.
struct PictureId {
    std::uint32_t value = 0;
    auto operator<=>(const PictureId&) const = default;
};

} // namespace orvane
