#include "read/doc/WordFile.h"

#include "read/doc/CompoundReader.h"

#include <algorithm>

#include <fmt/format.h>

namespace orvane::read::doc {
namespace {

constexpr std::uint32_t kIdentity = 0xA5EC;
constexpr std::uint32_t kOldestEdition = 0x00C1; ///< 97
constexpr std::uint32_t kLocked = 0x0100;
constexpr std::uint32_t kSecondTable = 0x0200;
constexpr std::size_t kFlags = 10;
constexpr std::size_t kLengths = 64;
constexpr std::size_t kPlaces = 154; ///< of the structures: pairs of place and size
constexpr std::size_t kPlaceCount = 152;
constexpr std::size_t kLookPages = 12;
constexpr std::size_t kParagraphPages = 13;
constexpr std::size_t kPieces = 33;
constexpr std::size_t kPageSize = 512;

/// Where the length of a part stands among the others; one of them is of no part.
std::size_t lengthIndex(TextPart part) {
    switch (part) {
    case TextPart::Body:
        return 3;
    case TextPart::Footnotes:
        return 4;
    case TextPart::RunningTexts:
        return 5;
    case TextPart::Comments:
        return 7;
    case TextPart::Endnotes:
        return 8;
    case TextPart::TextBoxes:
        return 9;
    case TextPart::RunningTextBoxes:
        return 10;
    }
    return 3;
}

/// Code page 1252 where it differs from Latin 1. Source: [MS-DOC] 2.9.73 (FcCompressed).
char16_t characterOf(std::uint32_t byte) {
    static constexpr std::u16string_view kHigh =
        u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
        u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";
    return byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80] : static_cast<char16_t>(byte);
}

enum class PageKind { Looks, Paragraphs };

/// The list of an entry on a page. Source: [MS-DOC] 2.9.32 (Chpx), 2.9.174 (PapxInFkp).
std::string_view listAt(const ByteView& page, std::size_t at, PageKind kind) {
    if (at == 0)
        return {};
    const std::size_t size = page.u8(at);
    if (kind == PageKind::Looks)
        return page.part(at + 1, size).bytes();
    return size == 0 ? page.part(at + 2, 2 * std::size_t{page.u8(at + 1)}).bytes()
                     : page.part(at + 1, 2 * size - 1).bytes();
}

/// Source: [MS-DOC] 2.9.33 (ChpxFkp), 2.9.175 (PapxFkp).
void readPage(const ByteView& page, PageKind kind, std::vector<FormattedRange>& ranges) {
    const std::size_t count = page.u8(kPageSize - 1);
    const std::size_t entrySize = kind == PageKind::Looks ? 1 : 13;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = 2 * std::size_t{page.u8(4 * (count + 1) + entrySize * i)};
        ranges.push_back({page.u32(4 * i), page.u32(4 * (i + 1)), std::string(listAt(page, at, kind))});
    }
}

std::vector<FormattedRange> readPages(const ByteView& index, const ByteView& main, PageKind kind) {
    std::vector<FormattedRange> ranges;
    const std::size_t pages = index.size() < 4 ? 0 : (index.size() - 4) / 8;
    for (std::size_t i = 0; i < pages; ++i)
        readPage(main.part(kPageSize * (index.u32(4 * (pages + 1 + i)) & 0x3FFFFF), kPageSize), kind, ranges);
    return ranges;
}

} // namespace

std::string_view nameOf(TextPart part) {
    switch (part) {
    case TextPart::Body:
        return "body";
    case TextPart::Footnotes:
        return "footnotes";
    case TextPart::RunningTexts:
        return "headers and footers";
    case TextPart::Comments:
        return "comments";
    case TextPart::Endnotes:
        return "endnotes";
    case TextPart::TextBoxes:
        return "text boxes";
    case TextPart::RunningTextBoxes:
        return "text boxes of headers";
    }
    return "";
}

WordFile::WordFile(std::string_view file)
    : m_streams(readCompoundFile(file)) {
    if (!m_streams.contains("WordDocument"))
        throw Damage("the file has no text document in it");
    if (main().u16(0) != kIdentity)
        throw Damage("the main stream does not begin as that of a document does");
    if (edition() < kOldestEdition)
        throw Damage("the document is of an edition before 97, which is another format");
    const std::uint32_t flags = main().u16(kFlags);
    if (flags & kLocked)
        throw Damage("the document is locked by a password");
    m_tableName = flags & kSecondTable ? "1Table" : "0Table";
    readPieces();
}

std::uint32_t WordFile::edition() const {
    return main().u16(2);
}

ByteView WordFile::stream(const std::string& name) const {
    const auto found = m_streams.find(name);
    const std::string_view bytes = found == m_streams.end() ? std::string_view() : std::string_view(found->second);
    return {bytes, fmt::format("the stream \"{}\"", name)};
}

ByteView WordFile::table(std::size_t number) const {
    if (number >= main().u16(kPlaceCount))
        return stream(m_tableName).part(0, 0);
    const std::size_t at = kPlaces + 8 * number;
    const std::uint32_t size = main().u32(at + 4);
    return stream(m_tableName).part(size == 0 ? 0 : main().u32(at), size);
}

ByteView WordFile::behind(std::size_t number) const {
    const std::size_t at = kPlaces + 8 * number;
    return stream(m_tableName).from(std::size_t{main().u32(at)} + main().u32(at + 4));
}

std::uint32_t WordFile::length(TextPart part) const {
    return main().u32(kLengths + 4 * lengthIndex(part));
}

void WordFile::readPieces() {
    constexpr std::uint32_t kChanges = 1;
    constexpr std::uint32_t kPieceTable = 2;
    constexpr std::uint32_t kCompressed = 0x40000000;
    const ByteView all = table(kPieces);
    std::size_t at = 0;
    while (all.u8(at) == kChanges)
        at += 3 + all.u16(at + 1);
    if (all.u8(at) != kPieceTable)
        throw Damage("the document has no table of pieces");
    const ByteView list = all.part(at + 5, all.u32(at + 1));
    const std::size_t count = list.size() < 4 ? 0 : (list.size() - 4) / 12;
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint32_t place = list.u32(4 * (count + 1) + 8 * i + 2);
        const bool isUnicode = (place & kCompressed) == 0;
        m_pieces.push_back(
            {list.u32(4 * i), list.u32(4 * (i + 1)), isUnicode ? place : (place & ~kCompressed) / 2, isUnicode});
        if (m_pieces.back().end < m_pieces.back().start)
            throw Damage("a piece of the text ends before it begins");
    }
}

std::u16string WordFile::text(std::uint32_t start, std::uint32_t end) const {
    const ByteView bytes = main();
    std::u16string characters;
    for (const Piece& piece : m_pieces) {
        const std::uint32_t from = std::max(start, piece.start), to = std::min(end, piece.end);
        const std::size_t unit = piece.isUnicode ? 2 : 1;
        for (std::uint32_t i = from; i < to; ++i) {
            const std::size_t at = piece.place + unit * std::size_t{i - piece.start};
            characters += piece.isUnicode ? static_cast<char16_t>(bytes.u16(at)) : characterOf(bytes.u8(at));
        }
    }
    return characters;
}

std::vector<FormattedRange> WordFile::looks() const {
    return readPages(table(kLookPages), main(), PageKind::Looks);
}

std::vector<FormattedRange> WordFile::paragraphs() const {
    return readPages(table(kParagraphPages), main(), PageKind::Paragraphs);
}

} // namespace orvane::read::doc
