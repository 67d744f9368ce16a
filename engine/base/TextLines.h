#pragma once

#include <string_view>
#include <vector>

namespace orvane {

/// The lines of a text, however they end: in LF, CR or both. At least one; what follows the last end is a line, too.
std::vector<std::string_view> linesOf(std::string_view text);

} // namespace orvane
