#pragma once

#include "base/Color.h"
#include "base/PictureData.h"

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
};

/// Decodes a picture to a file of its own; of a source that breaks off what is there is kept and `trouble` says so.
/// Returns nothing, and says why in `trouble`, when there is nothing to show.
std::optional<PictureData> decodePicture(const PictureSource& source, std::string& trouble);

} // namespace orvane::pdf
