#include "pdf/NamedMarks.h"

#include "pdf/ContentScanner.h"

#include <algorithm>

#include <fmt/format.h>

#include <Object.h>

namespace orvane::pdf {
namespace {

/// A name as its dictionary key: "/M#43" is "MC".
std::string keyOf(std::string_view name) {
    const auto hexDigit = [](char c) {
        return c >= '0' && c <= '9' ? c - '0' : (c | 0x20) >= 'a' && (c | 0x20) <= 'f' ? (c | 0x20) - 'a' + 10 : -1;
    };
    std::string key;
    for (std::size_t i = 1; i < name.size(); ++i) {
        const int high = name[i] == '#' && i + 2 < name.size() ? hexDigit(name[i + 1]) : -1;
        const int low = high >= 0 ? hexDigit(name[i + 2]) : -1;
        if (low >= 0) {
            key += static_cast<char>(high << 4 | low);
            i += 2;
        } else {
            key += name[i];
        }
    }
    return key;
}

void appendString(std::string& text, const ::Dict& dictionary, const char* key) {
    const ::Object value = dictionary.lookup(key);
    if (!value.isString())
        return;
    text += fmt::format(" /{} <", key);
    for (const char byte : value.getString()->toStr())
        text += fmt::format("{:02X}", static_cast<unsigned char>(byte));
    text += '>';
}

/// The marked point for a sequence of this tag and property list.
std::string markedPoint(std::string_view tag, const ::Object& properties) {
    std::string text = fmt::format(" /{} << /{} {}", kNamedMarkPoint, kNamedMarkTag, tag);
    if (properties.isDict()) {
        const ::Dict& dictionary = *properties.getDict();
        const ::Object mcid = dictionary.lookup("MCID");
        if (mcid.isInt())
            text += fmt::format(" /MCID {}", mcid.getInt());
        for (const char* key : {"ActualText", "Alt", "Lang"})
            appendString(text, dictionary, key);
    }
    return text + " >> DP ";
}

} // namespace

std::string withNamedMarks(std::string_view content, const ::Dict& named) {
    std::string result;
    result.reserve(content.size() + content.size() / 8);
    ContentScanner scanner(content);
    std::string_view beforeLast;
    std::string_view last;
    std::size_t copied = 0;
    for (std::string_view token = scanner.next(); !token.empty(); token = scanner.next()) {
        if (token == "BDC" && last.starts_with('/') && beforeLast.starts_with('/')) {
            result += content.substr(copied, scanner.position() - copied);
            result += markedPoint(beforeLast, named.lookup(keyOf(last).c_str()));
            copied = scanner.position();
        }
        beforeLast = last;
        last = token;
    }
    result += content.substr(std::min(copied, content.size()));
    return result;
}

} // namespace orvane::pdf
