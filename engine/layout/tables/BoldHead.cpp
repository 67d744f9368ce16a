#include "layout/tables/BoldHead.h"

#include "base/Utf8.h"
#include "layout/text/Characters.h"

#include <algorithm>
#include <set>

namespace orvane::layout {
namespace {

constexpr std::size_t kMostHeadWords = 2;

bool isBold(const TextPiece& piece, const std::vector<Line>& lines) {
    const std::vector<Word>& words = lines[piece.line].words;
    return std::all_of(words.begin() + static_cast<std::ptrdiff_t>(piece.firstWord),
                       words.begin() + static_cast<std::ptrdiff_t>(piece.endWord),
                       [](const Word& word) { return word.spans.front().look.isBold; });
}

} // namespace

bool hasBoldHead(std::span<const PieceRow> rows, std::size_t columnCount, const std::vector<Line>& lines,
                 const TableParameters::Tables& parameters) {
    const auto isBoldPiece = [&](const TextPiece& piece) { return isBold(piece, lines); };
    std::set<std::string> heads;
    for (const TextPiece& piece : rows.front().pieces) {
        const std::string text = textOf(piece, lines);
        if (!isBoldPiece(piece) || piece.wordCount() > kMostHeadWords || !isLetter(utf32FromUtf8(text).front()))
            return false;
        heads.insert(text);
    }
    return heads.size() == columnCount && rows.size() > static_cast<std::size_t>(parameters.fewestPartedRows) &&
           std::none_of(rows.begin() + 1, rows.end(), [&](const PieceRow& row) {
               return std::any_of(row.pieces.begin(), row.pieces.end(), isBoldPiece);
           });
}

} // namespace orvane::layout
