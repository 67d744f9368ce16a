#pragma once

#include <optional>
#include <string_view>

namespace orvane::pdf {

/// What the frame header of a JPEG file says. Source: ITU-T T.81, B.2.2; the Adobe marker as in T.872, 6.5.3.
struct JpegHeader {
    int width = 0;
    int height = 0;
    int components = 0;
    int bits = 0;
    bool isCommonProcess = false; ///< baseline, extended or progressive Huffman
    bool isRgb = false;           ///< three components that are not YCbCr
};

/// Nothing when there is no frame header in `bytes`, the start of a file.
std::optional<JpegHeader> readJpegHeader(std::string_view bytes);

} // namespace orvane::pdf
