#pragma once

#include "layout/tables/TableParameters.h"
#include "layout/text/PageText.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::layout {

/// Words of one line without a wide gap between them: what may be the text of one cell.
struct TextPiece {
    std::size_t line = 0;      ///< index into the page's lines
    std::size_t firstWord = 0; ///< indices into the line's words
    std::size_t endWord = 0;   ///< one past the last
    Rect box;
    double baseline = 0;
    double fontSize = 0;
    double signLeft = 0; ///< where the sign of its currency begins if that stands apart, else where its box does
    int filledCell = -1; ///< that it stands in, by number; see FilledCells

    std::size_t wordCount() const { return endWord - firstWord; }
};

/// Pieces that stand side by side.
struct PieceRow {
    std::vector<TextPiece> pieces; ///< from left to right
    Rect box;
    double baseline = 0;     ///< the first
    double lastBaseline = 0; ///< differs from the first where one text of several lines stands beside another
    double fontSize = 0;     ///< the largest
};

/// Cuts upright lines at their wide gaps. The sign of a currency before an amount is no piece of its own.
std::vector<TextPiece> cutIntoPieces(const std::vector<Line>& lines, const TableParameters::Tables& parameters);

/// Cuts the page's upright lines at their wide gaps and where two filled cells meet.
std::vector<TextPiece> cutIntoPieces(const PageText& page, const TableParameters::Tables& parameters);

/// Puts pieces side by side whose baselines agree, or whose boxes do so much overlap that one stands beside the middle
/// of two others; the rows come top to bottom.
std::vector<PieceRow> groupIntoRows(std::vector<TextPiece> pieces, const TableParameters::Tables& parameters);

/// Whether `row` is the upper line of some texts in the row below, which are not its first: long heads are broken.
bool isUpperLineOf(const PieceRow& row, const PieceRow& below, const TableParameters::Tables& parameters);

/// Words [first, end) of a line as a piece.
TextPiece pieceOf(const Line& line, std::size_t lineIndex, std::size_t first, std::size_t end);

/// Cuts a piece before the words of its line for which `isCutBefore` holds.
template<typename Predicate>
void cutPiece(const TextPiece& piece, const Line& line, const Predicate& isCutBefore, std::vector<TextPiece>& parts) {
    std::size_t first = piece.firstWord;
    for (std::size_t word = first + 1; word <= piece.endWord; ++word) {
        if (word < piece.endWord && !isCutBefore(word))
            continue;
        parts.push_back(pieceOf(line, piece.line, first, word));
        parts.back().filledCell = piece.filledCell;
        if (first == piece.firstWord)
            parts.back().signLeft = piece.signLeft;
        first = word;
    }
}

/// Whether every word of the piece is a number, an amount, a date or stands for none (a dash).
bool isNumeric(const TextPiece& piece, const std::vector<Line>& lines);

/// Whether the text begins with a capital letter, as sentences and names do.
bool beginsLikeSentence(const TextPiece& piece, const std::vector<Line>& lines);

/// Whether the first word of `piece` would have had room behind `above`, the text before it in a column with the texts
/// within `column`.
bool hasRoomBehind(const TextPiece& above, const TextPiece& piece, const Rect& column, const std::vector<Line>& lines,
                   const TableParameters::Tables& parameters);

/// Whether the text is a sign that begins the items of a list. Signs that also fill columns of their own, such as check
/// marks, are none here.
bool isBullet(std::string_view text);

/// Whether the text is the sign of a currency alone, which many tables set apart from its amount.
bool isCurrencySign(std::string_view text);

/// The words of the piece, parted by blanks.
std::string textOf(const TextPiece& piece, const std::vector<Line>& lines);

} // namespace orvane::layout
