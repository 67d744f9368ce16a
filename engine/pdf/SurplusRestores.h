#pragma once

#include <string>
#include <string_view>

namespace orvane::pdf {

/// The content without the Q operators that have no q before them. The PDF library leaves the rest of the content out
/// at such a Q, where every reader goes on.
std::string withoutSurplusRestores(std::string_view content);

/// Whether the library complained of one.
bool isSurplusRestore(std::string_view complaint);

} // namespace orvane::pdf
