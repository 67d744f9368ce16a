#include "layout/tables/IndexEntries.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"

#include <string>

namespace orvane::layout {
namespace {

/// The letters of a text as an alphabet sorts them; a letter alone heads entries and is none.
std::u32string keyOf(const TextPiece& piece, const std::vector<Line>& lines) {
    std::u32string key;
    for (const char32_t c : utf32FromUtf8(textOf(piece, lines)))
        if (isLetter(c))
            key += toLowerCase(c);
    return key.size() > 1 ? key : std::u32string();
}

/// What is sorted by the alphabet in one column.
struct Entries {
    std::u32string first;
    std::u32string last;
    std::size_t count = 0;
    std::size_t falls = 0; ///< entries that should stand before the one above
    std::size_t pages = 0; ///< texts that are numbers or end in one
};

Entries entriesOf(const ColumnPieces& column, const std::vector<Line>& lines) {
    Entries entries;
    for (const TextPiece* piece : column.pieces) {
        entries.pages += isDigit(static_cast<unsigned char>(textOf(*piece, lines).back()));
        const std::u32string key = keyOf(*piece, lines);
        if (key.empty())
            continue;
        entries.falls += key < entries.last;
        if (entries.count++ == 0)
            entries.first = key;
        entries.last = key;
    }
    return entries;
}

} // namespace

bool areIndexEntries(std::span<const ColumnPieces> columns, const std::vector<Line>& lines,
                     const TableParameters::Tables& parameters) {
    std::size_t count = 0;
    std::size_t falls = 0;
    std::size_t pages = 0;
    std::size_t sorted = 0;
    std::u32string last;
    for (const ColumnPieces& column : columns) {
        const Entries entries = entriesOf(column, lines);
        pages += entries.pages;
        if (isOfNumbers(column, lines, parameters))
            continue;
        // The first may go on from the page before, the last from a column before.
        if (entries.count < parameters.fewestColumnEntries || entries.first <= last)
            return false;
        last = entries.last;
        count += entries.count;
        falls += entries.falls;
        ++sorted;
    }
    return sorted >= 2 && count >= parameters.fewestEntries &&
           static_cast<double>(pages) >= parameters.leaderRowShare * static_cast<double>(count) &&
           static_cast<double>(falls) <= parameters.fallingEntryShare * static_cast<double>(count);
}

} // namespace orvane::layout
