#include "write/doc/StoryText.h"

#include <utility>

namespace orvane::write::doc {

void StoryText::add(std::u16string_view text, const std::string& properties) {
    if (text.empty())
        return;
    m_text += text;
    if (!m_looks.empty() && m_looks.back().properties == properties)
        m_looks.back().end = length();
    else
        m_looks.push_back({length(), properties});
}

void StoryText::endParagraph(char16_t mark, const std::string& markProperties, std::string paragraphProperties) {
    // A look of its own for the mark, even if it is the text's: LibreOffice drops a look that covers a paragraph and
    // its mark where a table follows.
    if (markProperties.empty())
        add({&mark, 1}, {});
    else {
        m_text += mark;
        m_looks.push_back({length(), markProperties});
    }
    m_paragraphs.push_back({length(), std::move(paragraphProperties)});
}

void StoryText::addField(char16_t mark, int kind, const std::string& properties) {
    m_fields.push_back({length(), mark, kind});
    add({&mark, 1}, properties);
}

void StoryText::append(const StoryText& other) {
    const std::uint32_t start = length();
    m_text += other.m_text;
    for (const FormattedRange& look : other.m_looks)
        m_looks.push_back({start + look.end, look.properties});
    for (const FormattedRange& paragraph : other.m_paragraphs)
        m_paragraphs.push_back({start + paragraph.end, paragraph.properties});
    for (const FieldMark& field : other.m_fields)
        m_fields.push_back({start + field.place, field.character, field.kind});
}

} // namespace orvane::write::doc
