#pragma once

#include "write/doc/PropertyList.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::write::doc {

/// Characters that mean something else. Source: [MS-DOC] 2.4.1, 2.8.25.
namespace character {
inline constexpr char16_t kPicture = 0x01;
inline constexpr char16_t kNote = 0x02;
inline constexpr char16_t kSeparator = 0x03;
inline constexpr char16_t kContinuationSeparator = 0x04;
inline constexpr char16_t kComment = 0x05;
inline constexpr char16_t kCellEnd = 0x07;
inline constexpr char16_t kFloatingObject = 0x08;
inline constexpr char16_t kTab = 0x09;
inline constexpr char16_t kLineBreak = 0x0B;
inline constexpr char16_t kPageBreak = 0x0C; ///< the end of a section too
inline constexpr char16_t kParagraphEnd = 0x0D;
inline constexpr char16_t kColumnBreak = 0x0E;
inline constexpr char16_t kFieldStart = 0x13;
inline constexpr char16_t kFieldSeparator = 0x14;
inline constexpr char16_t kFieldEnd = 0x15;
inline constexpr char16_t kHardHyphen = 0x1E;
inline constexpr char16_t kSoftHyphen = 0x1F;
} // namespace character

/// Properties that hold up to a place.
struct FormattedRange {
    std::uint32_t end = 0; ///< in characters
    std::string properties;

    bool operator==(const FormattedRange&) const = default;
};

/// One of the three characters that a field is made of.
struct FieldMark {
    std::uint32_t place = 0;
    int character = 0;
    int kind = 0; ///< the field's type, or flags of its end

    bool operator==(const FieldMark&) const = default;
};

/// Text with its properties: a part of the file's one text. Parts are joined by append().
class StoryText {
public:
    /// Adds characters of one look.
    void add(std::u16string_view text, const std::string& properties);
    /// Ends the paragraph: all that was added since the last one.
    void endParagraph(char16_t mark, const std::string& markProperties, std::string paragraphProperties);
    void addField(char16_t mark, int kind, const std::string& properties);
    void append(const StoryText& other);

    std::uint32_t length() const { return static_cast<std::uint32_t>(m_text.size()); }
    const std::u16string& text() const { return m_text; }
    const std::vector<FormattedRange>& looks() const { return m_looks; }
    const std::vector<FormattedRange>& paragraphs() const { return m_paragraphs; }
    const std::vector<FieldMark>& fields() const { return m_fields; }

    bool operator==(const StoryText&) const = default;

private:
    std::u16string m_text;
    std::vector<FormattedRange> m_looks;
    std::vector<FormattedRange> m_paragraphs;
    std::vector<FieldMark> m_fields;
};

} // namespace orvane::write::doc
