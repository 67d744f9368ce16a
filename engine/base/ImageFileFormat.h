#pragma once

#include <cstdint>

namespace orvane {

/// The file formats in which the pictures of a document can be taken out. The first nine stand in the order of the
/// contract's codes, which count from 0.
enum class ImageFileFormat : std::uint8_t {
    Bmp,
    Jpg,
    Pbm, ///< bilevel
    Pcx,
    Png,
    Pnm, ///< bilevel, grey or coloured, whichever fits
    Ppm, ///< coloured
    Psd,
    Tiff,
    Original, ///< each picture in the format that its stream holds, PNG for one that holds none
};

} // namespace orvane
