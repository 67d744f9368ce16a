#include "layout/tables/RowContent.h"

#include <algorithm>
#include <cctype>

namespace orvane::layout {
namespace {

/// "(1)", "(b)", "[12]".
bool isColumnNumber(std::string_view text) {
    if (text.size() < 3 || text.size() > 4 || (text.front() != '(' && text.front() != '['))
        return false;
    const auto isSign = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; };
    return (text.back() == ')' || text.back() == ']') && std::all_of(text.begin() + 1, text.end() - 1, isSign);
}

} // namespace

RowContent contentOf(const PieceRow& row, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
                     const TableParameters::Tables& parameters) {
    RowContent content;
    std::size_t numbers = 0;
    std::size_t columnNumbers = 0;
    for (const TextPiece& piece : row.pieces) {
        const ColumnRange range = columnsOf(piece, gaps);
        content.byColumn.try_emplace(range.first, &piece);
        content.hasSpan = content.hasSpan || range.first != range.last;
        numbers += isNumeric(piece, lines);
        columnNumbers += isColumnNumber(textOf(piece, lines));
        content.isLabelled = content.isLabelled || (range.first == 0 && !isNumeric(piece, lines));
        const Look& look = lines[piece.line].words[piece.firstWord].spans.front().look;
        content.isBold = content.isBold && look.isBold;
        content.isItalic = content.isItalic && look.isItalic;
    }
    content.hasNumber = numbers > 0;
    content.isOfNumbers = numbers > 0 && static_cast<double>(numbers) >=
                                             parameters.headNumberShare * static_cast<double>(row.pieces.size());
    content.isNumbering = columnNumbers >= 2 && columnNumbers == row.pieces.size();
    return content;
}

} // namespace orvane::layout
