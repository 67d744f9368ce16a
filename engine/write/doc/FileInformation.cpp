#include "write/doc/FileInformation.h"

#include "write/doc/Bytes.h"

namespace orvane::write::doc {
namespace {

// Source: [MS-DOC] 2.5.2 (FibBase).
constexpr int kIdentity = 0xA5EC;
constexpr int kVersion = 0x00C1;
constexpr int kOldestReader = 0x00BF;
constexpr int kUsEnglish = 0x0409;
constexpr int kHasPictures = 0x0008;
constexpr int kNoQuickSaves = 0x00F0;
constexpr int kSecondTableStream = 0x0200;
constexpr int kIsUnicode = 0x1000;
// Source: [MS-DOC] 2.5.3, 2.5.4, 2.5.11: sizes of the parts, and the edition that the longer block is of.
constexpr int kShortNumbers = 14;
constexpr int kLongNumbers = 22;
constexpr int kEdition = 0x0101;

} // namespace

void TableStream::add(TablePart part, const std::string& bytes) {
    if (bytes.empty())
        return;
    m_places[static_cast<std::size_t>(part)] = {static_cast<std::uint32_t>(m_bytes.size()),
                                                static_cast<std::uint32_t>(bytes.size())};
    m_bytes += bytes;
}

std::string fileInformation(const TextLengths& lengths, const TableStream& table, std::uint32_t textEnd,
                            std::uint32_t streamSize) {
    Bytes fib;
    fib.u16(kIdentity).u16(kVersion).u16(0).u16(kUsEnglish).u16(0);
    fib.u16(kIsUnicode | kSecondTableStream | kNoQuickSaves | kHasPictures).u16(kOldestReader).zeros(4 + 2 + 4);
    // Old readers look for the text here.
    fib.u32(kFileInformationSize).u32(textEnd);
    fib.u16(kShortNumbers).zeros(2 * (kShortNumbers - 1)).u16(kUsEnglish);
    fib.u16(kLongNumbers).u32(streamSize).zeros(8);
    fib.u32(lengths.body).u32(lengths.footnotes).u32(lengths.runningTexts).zeros(4).u32(lengths.comments);
    fib.u32(lengths.endnotes).u32(lengths.textBoxes).u32(lengths.runningTextBoxes).zeros(4 * (kLongNumbers - 11));
    fib.u16(static_cast<std::int64_t>(TableStream::kCount));
    for (std::size_t i = 0; i < TableStream::kCount; ++i)
        fib.u32(table.placeOf(i).first).u32(table.placeOf(i).second);
    fib.u16(2).u16(kEdition).u16(0);
    fib.zeros(kFileInformationSize - fib.size());
    return fib.str();
}

} // namespace orvane::write::doc
