#pragma once

#include "pdf/PictureSource.h"

#include <cstdint>
#include <string>

namespace orvane::pdf {

/// A picture larger than this is not decoded: an A0 sheet scanned at 400 dpi has 250 million pixels.
bool isSizeSane(std::int64_t width, std::int64_t height);

/// Whether decoding the picture would cost no more than a picture may; otherwise `trouble` says what is wrong. What the
/// dictionary says counts, and what the coded data says of itself.
bool isWithinLimits(const PictureSource& source, std::string& trouble);

/// The same for a mask; a picture whose mask is not is shown without it.
bool isWithinLimits(const PictureMask& mask);

} // namespace orvane::pdf
