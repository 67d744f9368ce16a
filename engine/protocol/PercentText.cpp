#include "protocol/PercentText.h"

#include "protocol/ProtocolError.h"

#include <charconv>

#include <fmt/format.h>

namespace orvane::protocol {
namespace {

bool isPrintable(char c) {
    return c >= 0x20 && c < 0x7f;
}

char hexByte(std::string_view digits) {
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (digits.size() != 2 || error != std::errc{} || end != digits.data() + digits.size())
        throw ProtocolError("a percent sign without two hexadecimal digits");
    return static_cast<char>(value);
}

} // namespace

std::string percentEncoded(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        if (isPrintable(c) && c != '%')
            text.push_back(c);
        else
            text += fmt::format("%{:02X}", static_cast<unsigned char>(c));
    }
    return text;
}

std::string percentDecoded(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!isPrintable(text[i]))
            throw ProtocolError("an unprintable character in an encoded text");
        if (text[i] == '%') {
            bytes.push_back(hexByte(text.substr(i + 1, 2)));
            i += 2;
        } else {
            bytes.push_back(text[i]);
        }
    }
    return bytes;
}

} // namespace orvane::protocol
