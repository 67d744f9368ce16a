#pragma once

#include "pdf/CodedSize.h"

#include <string_view>

namespace orvane::pdf {

/// The largest size that a JBIG2 stream's segments speak of: its page, its regions, and the symbols of its
/// dictionaries, counted as pixels of a row. Damaged streams claim billions, which their decoder works off one by one.
std::optional<PixelSize> largestJbig2Size(std::string_view bytes);

} // namespace orvane::pdf
