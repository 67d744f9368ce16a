#pragma once

#include <string>
#include <string_view>

namespace orvane::protocol {

/// Bytes of any kind as printable ASCII: everything else, and the percent sign, as %XX.
std::string percentEncoded(std::string_view bytes);

/// The reverse.
/// Errors: ProtocolError for a percent sign without two hexadecimal digits, and for anything but printable ASCII.
std::string percentDecoded(std::string_view text);

} // namespace orvane::protocol
