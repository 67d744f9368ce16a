#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane::pdf {

/// What the size segment of a JPEG 2000 codestream says. Source: ITU-T T.800, A.5.1.
struct Jpeg2000Header {
    std::int64_t width = 0;
    std::int64_t height = 0;
    int components = 0;
    std::uint8_t depth =
        0; ///< of the first component, as the segment codes it: bits less one, the highest bit its sign
};

/// Nothing when there is no such segment in `bytes`, the start of a file or of a bare codestream.
std::optional<Jpeg2000Header> readJpeg2000Header(std::string_view bytes);

} // namespace orvane::pdf
