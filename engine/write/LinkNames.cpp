#include "write/LinkNames.h"

#include "base/Utf8.h"

#include <fmt/format.h>

namespace orvane::write {
namespace {

constexpr std::size_t kLongestBookmark = 40;
/// Word processors call a document damaged that has a longer address.
constexpr std::size_t kLongestAddress = 2079;

bool isDigit(char32_t c) {
    return c >= '0' && c <= '9';
}

bool isNameCharacter(char32_t c) {
    return c >= 0x80 || isDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

bool isHexDigit(char c) {
    return isDigit(static_cast<unsigned char>(c)) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

bool isAddressCharacter(char c) {
    constexpr std::string_view kOthers = "-._~:/?#[]@!$&'()*+,;=%";
    return isDigit(static_cast<unsigned char>(c)) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
           kOthers.find(c) != std::string_view::npos;
}

bool isEscapeAt(std::string_view uri, std::size_t i) {
    return i + 2 < uri.size() && isHexDigit(uri[i + 1]) && isHexDigit(uri[i + 2]);
}

} // namespace

std::string bookmarkName(std::string_view name) {
    std::u32string characters = utf32FromUtf8(name);
    for (char32_t& c : characters)
        if (!isNameCharacter(c))
            c = '_';
    if (!characters.empty() && isDigit(characters.front()))
        characters.insert(characters.begin(), '_');
    characters.resize(std::min(characters.size(), kLongestBookmark));
    return utf8FromUtf32(characters);
}

std::string linkAddress(std::string_view uri) {
    std::string address;
    bool hasFragment = false;
    for (std::size_t i = 0; i < uri.size(); ++i) {
        const char c = uri[i];
        const bool isSecondFragment = c == '#' && hasFragment;
        const bool isLonePercent = c == '%' && !isEscapeAt(uri, i);
        hasFragment |= c == '#';
        if (isAddressCharacter(c) && !isSecondFragment && !isLonePercent)
            address += c;
        else
            address += fmt::format("%{:02X}", static_cast<unsigned char>(c));
    }
    return address.size() <= kLongestAddress ? address : std::string();
}

} // namespace orvane::write
