#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// The characters of a UTF-8 text; U+FFFD for each byte that is not valid.
std::u32string utf32FromUtf8(std::string_view text);

/// The text as UTF-8; surrogates and values beyond U+10FFFF become U+FFFD.
std::string utf8FromUtf32(std::u32string_view text);

} // namespace orvane
