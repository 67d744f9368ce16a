#include "layout/tables/CodeListing.h"

#include "layout/tables/ItemLabels.h"
#include "layout/text/CommentSign.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace orvane::layout {
namespace {

template<typename Predicate>
double shareOfRows(const AlignedRows& aligned, const Predicate& predicate) {
    const auto count = std::count_if(aligned.rows.begin(), aligned.rows.end(), predicate);
    return static_cast<double>(count) / static_cast<double>(aligned.rows.size());
}

bool isInTypewriter(const TextPiece& piece, const PageText& page) {
    const Look& look = page.lines[piece.line].words[piece.firstWord].spans.front().look;
    return look.font < page.fonts.size() && page.fonts[look.font].isFixedPitch;
}

/// The text as a whole number, if it is nothing else.
std::optional<long> wholeNumber(const std::string& text) {
    long number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

/// Whether the rows begin with "1:", "2:", "3:".
bool areNumbersWithColons(const AlignedRows& aligned, const std::vector<Line>& lines,
                          const TableParameters::Tables& parameters) {
    std::optional<long> last;
    return shareOfRows(aligned, [&](const PieceRow& row) {
               const TextPiece& piece = row.pieces.front();
               const TextPiece word = pieceOf(lines[piece.line], piece.line, piece.firstWord, piece.firstWord + 1);
               const std::optional<long> number = lineNumberOf(textOf(word, lines));
               const bool counts = number && (!last || *number == *last + 1);
               last = number;
               return counts;
           }) > parameters.labelShare;
}

/// Whether numbers in another font count the lines of a column in a typewriter's.
bool areTypedLinesCounted(const PageText& page, std::span<const ColumnPieces> columns,
                          const TableParameters::Tables& parameters) {
    const auto typed = [&](const TextPiece* piece) { return isInTypewriter(*piece, page); };
    for (std::size_t i = 1; i < columns.size(); ++i)
        if (columns[i].share(typed) > parameters.codeShare && !columns[i - 1].pieces.empty() &&
            columns[i - 1].share(typed) == 0 && isRising(columns[i - 1], page.lines))
            return true;
    return false;
}

/// Whether rising numbers count lines with the signs of a program.
bool areLinesWithSignsCounted(const AlignedRows& aligned, const std::vector<Line>& lines,
                              const TableParameters::Tables& parameters) {
    long last = 0;
    return shareOfRows(aligned, [&](const PieceRow& row) {
               for (std::size_t i = 0; i + 1 < row.pieces.size(); ++i) {
                   const std::optional<long> number = wholeNumber(textOf(row.pieces[i], lines));
                   if (!number)
                       continue;
                   const bool isRising = *number > last;
                   last = *number;
                   return isRising && hasSignsOfCode(textOf(row.pieces[i + 1], lines));
               }
               return false;
           }) > parameters.labelShare;
}

/// Whether the typed rows begin with the marks of a program that answers, or most of their texts end in commas.
bool arePrinted(const PageText& page, const AlignedRows& aligned, std::span<const ColumnPieces> columns,
                const TableParameters::Tables& parameters) {
    const auto beginsWithMark = [&](const PieceRow& row) {
        const TextPiece& piece = row.pieces.front();
        return isInTypewriter(piece, page) && isMark(textOf(page.lines[piece.line].words[piece.firstWord]));
    };
    if (shareOfRows(aligned, beginsWithMark) > parameters.codeShare)
        return true;
    std::size_t texts = 0;
    std::size_t commas = 0;
    for (const ColumnPieces& column : columns) {
        for (const TextPiece* piece : column.pieces) {
            ++texts;
            commas += isInTypewriter(*piece, page) && textOf(*piece, page.lines).ends_with(',');
        }
    }
    return static_cast<double>(commas) > parameters.commaShare * static_cast<double>(texts);
}

/// Whether some column behind the first holds the comments of a program.
bool holdComments(const PageText& page, std::span<const ColumnPieces> columns,
                  const TableParameters::Tables& parameters) {
    const auto isComment = [&](const TextPiece* piece) { return startsComment(textOf(*piece, page.lines)); };
    return std::any_of(columns.begin() + 1, columns.end(),
                       [&](const ColumnPieces& column) { return column.share(isComment) > parameters.commentShare; });
}

} // namespace

bool areLinesCounted(const AlignedRows& aligned, const std::vector<Line>& lines,
                     const TableParameters::Tables& parameters) {
    return areNumbersWithColons(aligned, lines, parameters) || areLinesWithSignsCounted(aligned, lines, parameters);
}

bool areTyped(const PageText& page, const AlignedRows& aligned, std::span<const ColumnPieces> columns,
              const TableParameters::Tables& parameters) {
    const auto beginsTyped = [&](const PieceRow& row) { return isInTypewriter(row.pieces.front(), page); };
    const auto hasSigns = [&](const PieceRow& row) {
        return std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
            return isInTypewriter(piece, page) && hasSignsOfCode(textOf(piece, page.lines));
        });
    };
    const auto isTyped = [&](const TextPiece* piece) { return isInTypewriter(*piece, page); };
    const bool areBothTyped = areOthersFew(columns, parameters) && columns[1].share(isTyped) > parameters.codeShare;
    return areTypedLinesCounted(page, columns, parameters) || arePrinted(page, aligned, columns, parameters) ||
           (shareOfRows(aligned, beginsTyped) > parameters.codeShare &&
            (areBothTyped || holdComments(page, columns, parameters) ||
             shareOfRows(aligned, hasSigns) > parameters.codeShare));
}

} // namespace orvane::layout
