#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <utility>

namespace orvane::write::doc {

/// Structures of the table stream by their number in the file information block.
/// Source: [MS-DOC] 2.5.6 (FibRgFcLcb97), 2.5.8 (FibRgFcLcb2002).
enum class TablePart {
    Styles = 1,
    FootnoteReferences = 2,
    FootnoteTexts = 3,
    CommentReferences = 4,
    CommentTexts = 5,
    Sections = 6,
    RunningTexts = 11,
    Looks = 12,
    Paragraphs = 13,
    Fonts = 15,
    BodyFields = 16,
    RunningTextFields = 17,
    FootnoteFields = 18,
    CommentFields = 19,
    BookmarkNames = 21,
    BookmarkStarts = 22,
    BookmarkEnds = 23,
    DocumentProperties = 31,
    Pieces = 33,
    CommentAuthors = 36,
    BodyAnchors = 40,
    RunningTextAnchors = 41,
    EndnoteReferences = 46,
    EndnoteTexts = 47,
    EndnoteFields = 48,
    Shapes = 50,
    TextBoxes = 56,
    TextBoxFields = 57,
    RunningTextBoxes = 58,
    RunningTextBoxFields = 59,
    Lists = 73,
    ListReferences = 74,
    TextBoxBreaks = 75,
    RunningTextBoxBreaks = 76,
    CommentDetails = 112,
};

/// How many characters the parts of the text have, each with the paragraph mark that ends the part.
struct TextLengths {
    std::uint32_t body = 0;
    std::uint32_t footnotes = 0;
    std::uint32_t runningTexts = 0;
    std::uint32_t comments = 0;
    std::uint32_t endnotes = 0;
    std::uint32_t textBoxes = 0;
    std::uint32_t runningTextBoxes = 0;
};

/// The table stream, and where its structures stand.
class TableStream {
public:
    /// Adds a structure; an empty one has no place.
    void add(TablePart part, const std::string& bytes);
    /// Adds what belongs to the structure before it, without being counted to it.
    void addTail(const std::string& bytes) { m_bytes += bytes; }

    const std::string& bytes() const { return m_bytes; }
    std::pair<std::uint32_t, std::uint32_t> placeOf(std::size_t number) const { return m_places[number]; }
    static constexpr std::size_t kCount = 0x88;

private:
    std::string m_bytes;
    std::array<std::pair<std::uint32_t, std::uint32_t>, kCount> m_places{};
};

/// The size of the file information block; the text follows it.
inline constexpr std::uint32_t kFileInformationSize = 1536;

/// The block at the start of the main stream.
/// Source: [MS-DOC] 2.5 (Fib).
std::string fileInformation(const TextLengths& lengths, const TableStream& table, std::uint32_t textEnd,
                            std::uint32_t streamSize);

} // namespace orvane::write::doc
