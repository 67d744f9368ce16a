#pragma once

class Stream;

namespace orvane::pdf {

/// How the data of a picture holds its opacity beside the colours.
enum class OpacityChannel : unsigned char {
    None,
    Apart,   ///< the colours are whole
    Blended, ///< the colours are mixed with a ground already
};

/// Whether the samples of each pixel end with its opacity, which JPEG 2000 can hold. Requires: the picture has
/// `colorComponents` colours a pixel. Source: ISO 32000-1, 8.9.5.1 (SMaskInData).
OpacityChannel opacityChannelOf(::Stream& stream, int colorComponents);

} // namespace orvane::pdf
