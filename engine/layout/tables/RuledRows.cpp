#include "layout/tables/RuledRows.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// What the texts between two rules say.
enum class PartVerdict {
    OneRow,      ///< a row of several lines
    SeveralRows, ///< rows that no rule parts
    Unknown
};

/// The lines of one column between two rules.
struct ColumnLines {
    int count = 0;
    int numbers = 0;
    const TextPiece* last = nullptr;
    bool isTight = true;
};

PartVerdict judgePart(std::span<const RowContent> part, const std::vector<Line>& lines,
                      const TableParameters::Tables& parameters) {
    std::map<int, ColumnLines> columns;
    for (const RowContent& content : part) {
        if (content.hasSpan)
            return PartVerdict::SeveralRows;
        for (const auto& [column, piece] : content.byColumn) {
            ColumnLines& seen = columns[column];
            ++seen.count;
            seen.numbers += isNumeric(*piece, lines);
            if (seen.last && piece->baseline - seen.last->baseline > parameters.wrapPitch * piece->fontSize)
                seen.isTight = false;
            seen.last = piece;
        }
    }
    int least = static_cast<int>(part.size());
    int most = 0;
    for (const auto& [column, seen] : columns) {
        least = std::min(least, seen.count);
        most = std::max(most, seen.count);
        if (seen.numbers > 1 || !seen.isTight)
            return PartVerdict::SeveralRows;
    }
    if (most < 2 || columns.size() < 2)
        return PartVerdict::Unknown;
    return least == 1 ? PartVerdict::OneRow : PartVerdict::SeveralRows;
}

} // namespace

bool areRowsRuled(const std::vector<std::span<const RowContent>>& parts, const std::vector<Line>& lines,
                  const TableParameters::Tables& parameters) {
    if (static_cast<int>(parts.size()) < parameters.fewestPartedRows)
        return false;
    std::vector<PartVerdict> verdicts;
    for (const std::span<const RowContent> part : parts)
        verdicts.push_back(judgePart(part, lines, parameters));
    return std::ranges::count(verdicts, PartVerdict::SeveralRows) == 0 &&
           std::ranges::count(verdicts, PartVerdict::OneRow) > 0;
}

} // namespace orvane::layout
