#include "pdf/NamedMarks.h"

#include <algorithm>

#include <fmt/format.h>

#include <Object.h>

namespace orvane::pdf {
namespace {

bool isSpace(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t' || c == '\f' || c == '\0';
}
bool isDelimiter(char c) {
    return std::string_view("()<>[]{}/%").find(c) != std::string_view::npos;
}
bool isRegular(char c) {
    return !isSpace(c) && !isDelimiter(c);
}

/// Cuts a content stream into tokens; strings, dictionaries and arrays are passed over. Source: ISO 32000-1, 7.2
/// and 7.8.2.
class ContentScanner {
public:
    explicit ContentScanner(std::string_view content)
        : m_content(content) {}

    /// The next name (with its slash) or keyword or number; empty at the end.
    std::string_view next() {
        while (m_at < m_content.size()) {
            const char c = m_content[m_at];
            if (c == '(')
                skipString();
            else if (c == '<' || c == '>')
                skipAngles();
            else if (c == '%')
                skipUntil("\r\n");
            else if (c == '/')
                return takeRegular(1);
            else if (isRegular(c))
                return takeRegular(0);
            else
                ++m_at;
        }
        return {};
    }
    std::size_t position() const { return m_at; }

    /// Passes over the samples of an inline picture, after its ID: to an EI that stands alone and is followed by text.
    void skipInlinePicture() {
        for (std::size_t end = m_content.find("EI", m_at); end != std::string_view::npos;
             end = m_content.find("EI", end + 1)) {
            const bool startsAlone = end > 0 && isSpace(m_content[end - 1]);
            const bool endsAlone = end + 2 >= m_content.size() || isSpace(m_content[end + 2]);
            if (startsAlone && endsAlone && isText(m_content.substr(std::min(end + 2, m_content.size()), 16))) {
                m_at = end + 2;
                return;
            }
        }
        m_at = m_content.size();
    }

private:
    static bool isText(std::string_view bytes) {
        return std::all_of(bytes.begin(), bytes.end(), [](char c) { return isSpace(c) || (c >= 0x20 && c < 0x7F); });
    }
    std::string_view takeRegular(std::size_t leading) {
        const std::size_t start = m_at;
        m_at += leading;
        while (m_at < m_content.size() && isRegular(m_content[m_at]))
            ++m_at;
        return m_content.substr(start, m_at - start);
    }
    void skipUntil(std::string_view ends) { m_at = std::min(m_content.find_first_of(ends, m_at), m_content.size()); }
    void skipString() {
        int depth = 0;
        for (; m_at < m_content.size(); ++m_at) {
            const char c = m_content[m_at];
            if (c == '\\')
                ++m_at;
            else if (c == '(')
                ++depth;
            else if (c == ')' && --depth == 0)
                break;
        }
        ++m_at;
    }
    void skipAngles() {
        if (m_content.substr(m_at, 2) == "<<" || m_content[m_at] == '>') {
            ++m_at;
            if (m_at < m_content.size() && m_content[m_at] == '<')
                ++m_at;
            return;
        }
        skipUntil(">");
    }

    std::string_view m_content;
    std::size_t m_at = 0;
};

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
        } else if (token == "ID") {
            scanner.skipInlinePicture();
        }
        beforeLast = last;
        last = token;
    }
    result += content.substr(std::min(copied, content.size()));
    return result;
}

} // namespace orvane::pdf
