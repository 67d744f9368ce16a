#include "base/XmlWriter.h"

#include "base/Utf8.h"

#include <algorithm>
#include <charconv>

namespace orvane {
namespace {

constexpr std::size_t kFlushSize = 32 * 1024;

enum class Place { Text, Attribute };

bool isPlain(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x20 && byte < 0x80 && c != '<' && c != '>' && c != '&' && c != '"';
}

bool isXmlCharacter(char32_t c) {
    return c >= 0x20 ? c != 0xFFFE && c != 0xFFFF : c == '\t' || c == '\n' || c == '\r';
}

void appendCharacter(std::string& out, char32_t c, Place place) {
    switch (c) {
    case '<':
        out += "&lt;";
        return;
    case '>':
        out += "&gt;";
        return;
    case '&':
        out += "&amp;";
        return;
    case '"':
        out += place == Place::Attribute ? "&quot;" : "\"";
        return;
    case '\r':
        out += "&#13;";
        return;
    // A reader turns these into blanks when they stand in an attribute as they are.
    case '\t':
        out += place == Place::Attribute ? "&#9;" : "\t";
        return;
    case '\n':
        out += place == Place::Attribute ? "&#10;" : "\n";
        return;
    default:
        break;
    }
    if (c < 0x80)
        out += static_cast<char>(c);
    else
        out += utf8FromUtf32({&c, 1});
}

void appendEscaped(std::string& out, std::string_view text, Place place) {
    if (std::all_of(text.begin(), text.end(), isPlain)) {
        out += text;
        return;
    }
    for (const char32_t c : utf32FromUtf8(text))
        if (isXmlCharacter(c))
            appendCharacter(out, c, place);
}

void appendNumber(std::string& out, std::int64_t number) {
    char digits[24];
    const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
    out.append(digits, end);
}

} // namespace

XmlWriter::XmlWriter(Sink sink)
    : m_sink(std::move(sink)) {
    m_buffer.reserve(kFlushSize + kFlushSize / 2);
}

void XmlWriter::declaration() {
    m_buffer += "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
}

void XmlWriter::start(std::string_view name, EmptyElement whenEmpty) {
    m_elements.push_back({name});
    ++m_pendingStarts;
    if (whenEmpty == EmptyElement::Keep)
        writePendingStarts();
}

void XmlWriter::attribute(const XmlAttribute& attribute) {
    writePendingStarts();
    m_buffer += ' ';
    m_buffer += attribute.name;
    m_buffer += "=\"";
    if (const auto* number = std::get_if<std::int64_t>(&attribute.value))
        appendNumber(m_buffer, *number);
    else
        appendEscaped(m_buffer, std::get<std::string_view>(attribute.value), Place::Attribute);
    m_buffer += '"';
}

void XmlWriter::text(std::string_view text) {
    writePendingStarts();
    closeTag();
    appendEscaped(m_buffer, text, Place::Text);
}

void XmlWriter::end() {
    const OpenElement element = m_elements.back();
    m_elements.pop_back();
    if (!element.isWritten) {
        --m_pendingStarts;
        return;
    }
    if (m_isTagOpen) {
        m_buffer += "/>";
        m_isTagOpen = false;
        return;
    }
    m_buffer += "</";
    m_buffer += element.name;
    m_buffer += '>';
}

void XmlWriter::leaf(std::string_view name, std::initializer_list<XmlAttribute> attributes) {
    start(name);
    for (const XmlAttribute& item : attributes)
        attribute(item);
    end();
}

void XmlWriter::raw(std::string_view xml) {
    if (xml.empty())
        return;
    writePendingStarts();
    closeTag();
    m_buffer += xml;
}

void XmlWriter::finish() {
    m_sink(m_buffer);
    m_buffer.clear();
}

void XmlWriter::writePendingStarts() {
    for (; m_pendingStarts > 0; --m_pendingStarts) {
        OpenElement& element = m_elements[m_elements.size() - m_pendingStarts];
        closeTag();
        flushWhenLarge();
        m_buffer += '<';
        m_buffer += element.name;
        element.isWritten = true;
        m_isTagOpen = true;
    }
}

void XmlWriter::closeTag() {
    if (m_isTagOpen)
        m_buffer += '>';
    m_isTagOpen = false;
}

void XmlWriter::flushWhenLarge() {
    if (m_buffer.size() < kFlushSize)
        return;
    m_sink(m_buffer);
    m_buffer.clear();
}

} // namespace orvane
