#include "layout/tables/ContentsEntries.h"

#include <charconv>

namespace orvane::layout {
namespace {

/// The parts of a section's number, "2.10"; empty for other texts.
std::vector<long> sectionNumberOf(const std::string& text) {
    std::vector<long> parts;
    const char* const end = text.data() + text.size();
    for (const char* from = text.data(); from < end;) {
        long part = 0;
        const auto [behind, error] = std::from_chars(from, end, part);
        if (error != std::errc{} || part < 0 || (behind < end && *behind != '.'))
            return {};
        parts.push_back(part);
        from = behind + 1;
    }
    return parts;
}

/// Whether the column holds little but the numbers of sections, each behind the one above: "1", "1.2", "2.1". Titles
/// without a number may begin where those of other parts have theirs.
bool countsSections(const ColumnPieces& column, const std::vector<Line>& lines,
                    const TableParameters::Tables& parameters) {
    std::vector<long> last;
    std::size_t count = 0;
    for (const TextPiece* piece : column.pieces) {
        std::vector<long> number = sectionNumberOf(textOf(*piece, lines));
        if (number.empty())
            continue;
        if (number < last)
            return false;
        last = std::move(number);
        ++count;
    }
    return static_cast<double>(count) > parameters.labelShare * static_cast<double>(column.pieces.size());
}

/// Whether the leaders lead to amounts: several columns of numbers, or one of large or broken numbers, which go up
/// and down. The numbers of pages are small, and most often rise; those of sections do in each part.
bool leadToAmounts(std::span<const ColumnPieces> columns, const std::vector<Line>& lines,
                   const TableParameters::Tables& parameters) {
    std::vector<const ColumnPieces*> falling;
    for (std::size_t i = 1; i < columns.size(); ++i)
        if (isFalling(columns[i], lines, parameters) && !countsSections(columns[i], lines, parameters))
            falling.push_back(&columns[i]);
    return falling.size() >= 2 || std::any_of(falling.begin(), falling.end(), [&](const ColumnPieces* column) {
               return brokenNumberShare(*column, lines) > parameters.brokenNumberShare;
           });
}

/// Whether the last column counts up behind titles as page numbers do; before these may stand their numbers.
bool endInPageNumbers(std::span<const ColumnPieces> columns, const std::vector<Line>& lines,
                      const TableParameters::Tables& parameters) {
    if (!isRising(columns.back(), lines))
        return false;
    if (columns.size() <= 3)
        return columns.size() == 2 || !isOfNumbers(columns[1], lines, parameters);
    const auto before = columns.first(columns.size() - 1);
    return std::count_if(before.begin(), before.end(),
                         [&](const ColumnPieces& column) { return !countsSections(column, lines, parameters); }) == 1;
}

} // namespace

bool areContents(const AlignedRows& aligned, std::span<const ColumnPieces> columns, AlignedEvidence evidence,
                 const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    const auto led = std::count_if(aligned.rows.begin(), aligned.rows.end(), [&](const PieceRow& row) {
        return std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
            const Word& word = lines[piece.line].words[piece.firstWord];
            return word.leaderBefore != document::TabLeader::None ||
                   textOf(piece, lines).find("....") != std::string::npos;
        });
    });
    const bool areLed = static_cast<double>(led) > parameters.leaderRowShare * static_cast<double>(aligned.rows.size());
    return (areLed && !leadToAmounts(columns, lines, parameters)) ||
           (evidence == AlignedEvidence::Alignment && endInPageNumbers(columns, lines, parameters));
}

} // namespace orvane::layout
