#pragma once

#include "base/Color.h"
#include "pdf/OpacityChannel.h"

#include <optional>
#include <string>

class GfxImageColorMap;
class Stream;

namespace orvane::pdf {

/// What makes parts of a picture transparent: a stencil (colors is null) or a soft mask.
struct PictureMask {
    ::Stream* stream = nullptr;
    int width = 0;
    int height = 0;
    GfxImageColorMap* colors = nullptr;
    bool isInverted = false;
};

/// A picture as the PDF library hands it over.
struct PictureSource {
    ::Stream* stream = nullptr;
    int width = 0;
    int height = 0;
    GfxImageColorMap* colors = nullptr; ///< null for a stencil
    bool isInverted = false;            ///< of a stencil: ones are painted
    Color stencilColor;
    const int* colorKey = nullptr; ///< ranges of samples that are transparent, two a component
    std::optional<PictureMask> mask;
    OpacityChannel opacityChannel = OpacityChannel::None;
    std::string colorProfile; ///< ICC profile of the samples, where it is wanted and there is one
};

} // namespace orvane::pdf
