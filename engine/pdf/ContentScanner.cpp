#include "pdf/ContentScanner.h"

#include <algorithm>

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

bool isText(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return isSpace(c) || (c >= 0x20 && c < 0x7F); });
}

} // namespace

std::string_view ContentScanner::next() {
    while (m_at < m_content.size()) {
        const char c = m_content[m_at];
        if (c == '(') {
            skipString();
        } else if (const std::string_view two = m_content.substr(m_at, 2); two == "<<" || two == ">>") {
            m_at += 2;
            return two;
        } else if (c == '<') {
            skipUntil(">");
        } else if (c == '%') {
            skipUntil("\r\n");
        } else if (c == '/') {
            return takeRegular(1);
        } else if (isRegular(c)) {
            const std::string_view token = takeRegular(0);
            if (token == "ID")
                skipInlinePicture();
            return token;
        } else {
            ++m_at;
        }
    }
    return {};
}

std::string_view ContentScanner::takeRegular(std::size_t leading) {
    const std::size_t start = m_at;
    m_at += leading;
    while (m_at < m_content.size() && isRegular(m_content[m_at]))
        ++m_at;
    return m_content.substr(start, m_at - start);
}

void ContentScanner::skipUntil(std::string_view ends) {
    m_at = std::min(m_content.find_first_of(ends, m_at), m_content.size());
}

void ContentScanner::skipString() {
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
    m_at = std::min(m_at + 1, m_content.size());
}

void ContentScanner::skipInlinePicture() {
    // The samples may hold any bytes: they end with an EI that stands alone and is followed by text.
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

} // namespace orvane::pdf
