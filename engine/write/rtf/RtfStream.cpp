#include "write/rtf/RtfStream.h"

#include "base/Utf8.h"
#include "write/rtf/AnsiFallback.h"

#include <fmt/format.h>

namespace orvane::write::rtf {
namespace {

constexpr std::size_t kBufferSize = 32768;

} // namespace

void RtfStream::open() {
    put("{");
    m_isWordOpen = false;
}

void RtfStream::close() {
    put("}");
    m_isWordOpen = false;
}

void RtfStream::word(std::string_view name) {
    put("\\");
    put(name);
    m_isWordOpen = true;
}

void RtfStream::word(std::string_view name, std::int64_t value) {
    put("\\");
    put(name);
    put(fmt::format_int(value).c_str());
    m_isWordOpen = true;
}

void RtfStream::text(std::string_view utf8) {
    const std::u32string characters = utf32FromUtf8(utf8);
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const bool isLineEndPair = characters[i] == '\r' && i + 1 < characters.size() && characters[i + 1] == '\n';
        // LibreOffice makes three blanks of other widths of two that follow each other.
        if (i > 0 && characters[i] == ' ' && characters[i - 1] == ' ')
            symbol("{}");
        if (!isLineEndPair)
            character(characters[i]);
    }
}

void RtfStream::character(char32_t c) {
    switch (c) {
    case '\\':
        return symbol("\\\\");
    case '{':
        return symbol("\\{");
    case '}':
        return symbol("\\}");
    case '\t':
        return word("tab");
    case '\n':
    case '\r':
    case '\v':
    case 0x2028:
    case 0x2029:
        return word("line");
    case 0x00A0:
        return symbol("\\~");
    case 0x00AD:
        return symbol("\\-");
    case 0x2011:
        return symbol("\\_");
    default:
        break;
    }
    if (c < 0x20 || c == 0x7F)
        return;
    if (c >= 0x80)
        return symbol(unicodeCharacter(c));
    if (m_isWordOpen)
        put(" ");
    const char byte = static_cast<char>(c);
    symbol({&byte, 1});
}

void RtfStream::raw(std::string_view bytes) {
    symbol(bytes);
}

void RtfStream::newLine() {
    symbol("\n");
}

void RtfStream::symbol(std::string_view bytes) {
    put(bytes);
    m_isWordOpen = false;
}

void RtfStream::put(std::string_view bytes) {
    m_buffer += bytes;
    if (m_buffer.size() >= kBufferSize)
        finish();
}

void RtfStream::finish() {
    m_sink(m_buffer);
    m_buffer.clear();
}

} // namespace orvane::write::rtf
