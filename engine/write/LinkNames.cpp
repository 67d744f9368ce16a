#include "write/LinkNames.h"

#include "base/Utf8.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>

namespace orvane::write {
namespace {

constexpr std::size_t kLongestBookmark = 40;
/// Word processors call a document damaged that has a longer address.
constexpr std::size_t kLongestAddress = 2079;

bool isDigit(char32_t c) {
    return c >= '0' && c <= '9';
}

bool isLatinLetter(char32_t c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool isNameCharacter(char32_t c) {
    return c >= 0x80 || isDigit(c) || isLatinLetter(c) || c == '_';
}

bool isHexDigit(char c) {
    return isDigit(static_cast<unsigned char>(c)) || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
}

bool isAddressCharacter(char c) {
    constexpr std::string_view kOthers = "-._~:/?#[]@!$&'()*+,;=%";
    return isDigit(static_cast<unsigned char>(c)) || isLatinLetter(static_cast<unsigned char>(c)) ||
           kOthers.find(c) != std::string_view::npos;
}

bool isEscapeAt(std::string_view uri, std::size_t i) {
    return i + 2 < uri.size() && isHexDigit(uri[i + 1]) && isHexDigit(uri[i + 2]);
}

std::string escapeOf(char c) {
    return fmt::format("%{:02X}", static_cast<unsigned char>(c));
}

constexpr std::string_view kBrackets = "[]";
constexpr std::string_view kBracketsAndColon = "[]:";

/// The text with these signs written as %XX.
std::string escaped(std::string_view text, std::string_view signs) {
    std::string result;
    for (const char c : text)
        result += signs.find(c) != signs.npos ? escapeOf(c) : std::string(1, c);
    return result;
}

bool isSchemeCharacter(char c) {
    const auto code = static_cast<unsigned char>(c);
    return isLatinLetter(code) || isDigit(code) || c == '+' || c == '-' || c == '.';
}

/// Where the scheme and its colon end; 0 without one.
std::size_t endOfScheme(std::string_view uri) {
    const auto end = std::find_if_not(uri.begin(), uri.end(), isSchemeCharacter);
    const bool isScheme = end != uri.end() && *end == ':' && isLatinLetter(static_cast<unsigned char>(uri.front()));
    return isScheme ? static_cast<std::size_t>(end - uri.begin()) + 1 : 0;
}

/// The host with the number of its port, if it has one: no other colon may stand there, and brackets only around the
/// numbers of a host.
std::string hostAddress(std::string_view host) {
    const std::size_t colon = host.find_last_of(':');
    const std::string_view port = colon == std::string_view::npos ? std::string_view() : host.substr(colon + 1);
    const bool hasPort = colon != std::string_view::npos && port.find_first_not_of("0123456789") == port.npos;
    const std::string_view name = hasPort ? host.substr(0, colon) : host;
    const bool isNumbers = name.size() > 2 && name.front() == '[' && name.back() == ']' &&
                           name.substr(1, name.size() - 2).find_first_not_of("0123456789abcdefABCDEF:.") == name.npos;
    return (isNumbers ? std::string(name) : escaped(name, kBracketsAndColon)) + std::string(host.substr(name.size()));
}

/// The address with colons and brackets escaped where none may stand.
std::string withPartsEscaped(std::string_view uri) {
    const std::size_t scheme = endOfScheme(uri);
    std::string address(uri.substr(0, scheme));
    std::string_view rest = uri.substr(scheme);
    if (rest.starts_with("//")) {
        const std::string_view authority = rest.substr(2, rest.find_first_of("/?#", 2) - 2);
        const std::size_t host = authority.find_last_of('@') + 1; // 0 without a user
        address += "//" + escaped(authority.substr(0, host), kBrackets) + hostAddress(authority.substr(host));
        rest.remove_prefix(2 + authority.size());
    } else if (scheme == 0) {
        const std::string_view segment = rest.substr(0, rest.find_first_of("/?#"));
        address += escaped(segment, kBracketsAndColon);
        rest.remove_prefix(segment.size());
    }
    return address + escaped(rest, kBrackets);
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
            address += escapeOf(c);
    }
    address = withPartsEscaped(address);
    return address.size() <= kLongestAddress ? address : std::string();
}

} // namespace orvane::write
