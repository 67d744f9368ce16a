#pragma once

#include <string>
#include <string_view>

namespace orvane::pictures {

/// A JP2 file: `bytes` as they are where they are one, and a bare codestream within the boxes that make a file of it.
/// Source: ITU-T T.800, Annex I.
std::string jpeg2000File(std::string_view bytes);

} // namespace orvane::pictures
