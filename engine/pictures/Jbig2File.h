#pragma once

#include <string>
#include <string_view>

namespace orvane::pictures {

/// A JBIG2 file of the segments that a PDF keeps apart: the shared ones and the picture's own. Source: ITU-T T.88,
/// Annex D.1 (sequential organisation) and 7.2.
std::string jbig2File(std::string_view globals, std::string_view segments);

} // namespace orvane::pictures
