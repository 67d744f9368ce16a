#pragma once

#include <string>

namespace orvane::pictures {

/// How the samples of a JPEG file are stored.
enum class JpegColors {
    Gray,
    YCbCr,
    Rgb,  ///< an Adobe marker says so
    Cmyk, ///< as they come, with an Adobe marker
    Ycck,
};

/// Codes interleaved samples of 8 bits (grey, RGB or CMYK) as finely as the format can.
std::string codeJpeg(const std::string& samples, int width, int height, JpegColors colors);

} // namespace orvane::pictures
