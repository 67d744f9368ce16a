#pragma once

#include "base/Geometry.h"
#include "base/PictureData.h"
#include "base/Units.h"
#include "document/LinkTarget.h"

#include <optional>
#include <string>

namespace orvane::document {

/// Where an item came from; for logs, tests and pictures of what a stage saw.
struct Origin {
    int page = 0; ///< 1-based; 0 for what the engine added
    Rect box;     ///< page space
};

/// How much of each side of a picture is cut away, as shares of its size.
struct Crop {
    double left = 0, top = 0, right = 0, bottom = 0;
    bool operator==(const Crop&) const = default;
};

/// A picture with the size it is shown at.
struct Picture {
    PictureId id;
    Emu width; ///< before it is turned; it turns about its middle
    Emu height;
    Crop crop;
    double rotation = 0; ///< degrees clockwise
    bool isMirroredHorizontally = false;
    bool isMirroredVertically = false;
    std::string alternateText;
    Origin origin;
    std::optional<LinkTarget> link; ///< of one that floats; another stands in a Link
};

} // namespace orvane::document
