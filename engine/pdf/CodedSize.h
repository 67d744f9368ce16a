#pragma once

#include <cstdint>
#include <optional>
#include <string>

class Stream;

namespace orvane::pdf {

struct PixelSize {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

/// The size that the coded data of a picture (JPEG, JPEG 2000, JBIG2) says of itself, which its decoder believes and
/// the PDF need not have said; nothing for other codings and where no size is found. Reads the start of the data and
/// resets it.
std::optional<PixelSize> codedSize(::Stream& stream);

/// The first part of a stream's data, as far as headers reach. Resets the stream.
std::string codedStart(::Stream& stream);

} // namespace orvane::pdf
