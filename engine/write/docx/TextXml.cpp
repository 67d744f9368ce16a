#include "write/docx/TextXml.h"

namespace orvane::write::docx {
namespace {

/// A character that a run holds as an element.
struct TextElement {
    std::string_view bytes;
    std::string_view element; ///< empty: the character is left out
};

constexpr TextElement kTextElements[] = {
    {"\t", "w:tab"},
    {"\r\n", "w:br"},
    {"\n", "w:br"},
    {"\r", "w:br"},
    {"\v", "w:br"},
    {"\f", ""},
    {"\xC2\xAD", "w:softHyphen"},
    {"\xE2\x80\x91", "w:noBreakHyphen"},
    {"\xE2\x80\xA8", "w:br"},
    {"\xE2\x80\xA9", "w:br"},
};

const TextElement* elementAt(std::string_view text) {
    for (const TextElement& item : kTextElements)
        if (text.starts_with(item.bytes))
            return &item;
    return nullptr;
}

bool mayStartElement(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == '\xC2' || c == '\xE2';
}

void writeCharacters(XmlWriter& xml, std::string_view text) {
    if (text.empty())
        return;
    const XmlElement t(xml, "w:t");
    if (text.front() == ' ' || text.back() == ' ' || text.find("  ") != std::string_view::npos)
        xml.attribute({"xml:space", "preserve"});
    xml.text(text);
}

} // namespace

void writeRunText(XmlWriter& xml, std::string_view text) {
    std::size_t start = 0;
    for (std::size_t i = 0; i < text.size();) {
        const TextElement* item = mayStartElement(text[i]) ? elementAt(text.substr(i)) : nullptr;
        if (!item) {
            ++i;
            continue;
        }
        writeCharacters(xml, text.substr(start, i - start));
        if (!item->element.empty())
            xml.leaf(item->element);
        i += item->bytes.size();
        start = i;
    }
    writeCharacters(xml, text.substr(start));
}

} // namespace orvane::write::docx
