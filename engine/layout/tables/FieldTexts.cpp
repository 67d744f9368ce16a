#include "layout/tables/FieldTexts.h"

#include "layout/text/LineText.h"

#include <algorithm>
#include <map>

namespace orvane::layout {
namespace {

bool isBold(const Word& word) {
    return !word.spans.empty() && word.spans.front().look.isBold;
}

} // namespace

bool isField(const TextPiece& piece, const std::vector<Line>& lines) {
    const std::vector<Word>& words = lines[piece.line].words;
    for (std::size_t i = piece.firstWord; i + 1 < piece.endWord && isBold(words[i]); ++i)
        if (textOf(words[i]).ends_with(':'))
            return !isBold(words[i + 1]);
    return false;
}

bool areFields(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters) {
    std::map<int, int> fieldsOfColumn;
    double fields = 0;
    double texts = 0;
    for (const PieceRow& row : rows) {
        for (const TextPiece& piece : row.pieces) {
            const ColumnRange range = columnsOf(piece, gaps);
            const bool isOne = isField(piece, lines);
            texts += 1;
            fields += isOne;
            if (isOne && range.first == range.last)
                ++fieldsOfColumn[range.first];
        }
    }
    const auto columns = std::count_if(fieldsOfColumn.begin(), fieldsOfColumn.end(), [&](const auto& column) {
        return column.second >= parameters.minimumRowsParted;
    });
    return columns >= 2 && fields > parameters.keyShare * texts;
}

} // namespace orvane::layout
