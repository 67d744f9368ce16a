#pragma once

#include "read/doc/ByteView.h"

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::read::doc {

/// The parts of a document's text, in their order. Source: [MS-DOC] 2.5.4 (FibRgLw97).
enum class TextPart { Body, Footnotes, RunningTexts, Comments, Endnotes, TextBoxes, RunningTextBoxes };
inline constexpr std::array kTextParts{
    TextPart::Body,     TextPart::Footnotes, TextPart::RunningTexts,    TextPart::Comments,
    TextPart::Endnotes, TextPart::TextBoxes, TextPart::RunningTextBoxes};
std::string_view nameOf(TextPart part);

/// A stretch of text that stands in one place of the main stream.
struct Piece {
    std::uint32_t start = 0; ///< in characters
    std::uint32_t end = 0;
    std::uint32_t place = 0; ///< of its first byte
    bool isUnicode = true;   ///< two bytes a character; else one, of code page 1252
};

/// Properties that hold for bytes of the main stream.
struct FormattedRange {
    std::uint32_t start = 0;
    std::uint32_t end = 0;
    std::string properties; ///< of paragraphs with the style's number before them
};

/// A binary document, opened: its streams, and what leads to their parts.
/// Errors: Damage for what is none, or is of another edition, or locked.
/// Source: [MS-DOC] 2.1, 2.4.1, 2.5.
class WordFile {
public:
    explicit WordFile(std::string_view file);

    const std::map<std::string, std::string>& streams() const { return m_streams; }
    ByteView stream(const std::string& name) const;
    ByteView main() const { return stream("WordDocument"); }
    const std::string& tableName() const { return m_tableName; }
    std::uint32_t edition() const;

    /// A structure of the table stream by its number in the file information block; empty for one that is not there.
    ByteView table(std::size_t number) const;
    /// What stands behind the structure in the table stream.
    ByteView behind(std::size_t number) const;
    std::uint32_t length(TextPart part) const;

    const std::vector<Piece>& pieces() const { return m_pieces; }
    /// The characters of a range, as UTF-16.
    std::u16string text(std::uint32_t start, std::uint32_t end) const;
    std::vector<FormattedRange> looks() const;
    std::vector<FormattedRange> paragraphs() const;

private:
    void readPieces();

    std::map<std::string, std::string> m_streams;
    std::string m_tableName;
    std::vector<Piece> m_pieces;
};

} // namespace orvane::read::doc
