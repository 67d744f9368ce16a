#include "layout/tables/TextPiece.h"

#include "base/Utf8.h"
#include "layout/tables/FilledCells.h"
#include "layout/text/Characters.h"
#include "layout/text/LabelText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace orvane::layout {
namespace {

double gapBetween(const Rect& word, const Rect& next) {
    // Right-to-left lines list their words from the right.
    return std::max(next.left - word.right, word.left - next.right);
}

/// The widest gap that may be a blank. The narrowest one of the line tells how far its blanks were stretched to fill
/// it.
double widestBlank(const Line& line, const TableParameters::Tables& parameters) {
    double narrowest = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < line.words.size(); ++i)
        if (line.words[i].gapBefore == Gap::Space)
            narrowest = std::min(narrowest, gapBetween(line.words[i - 1].box, line.words[i].box));
    const double usual = parameters.pieceGap * line.fontSize;
    if (narrowest > parameters.widestStretch * line.fontSize)
        return usual;
    return std::max(usual, parameters.blankStretch * narrowest);
}

void addTo(PieceRow& row, TextPiece piece) {
    if (row.pieces.empty())
        row.baseline = piece.baseline;
    row.lastBaseline = piece.baseline;
    row.box = row.box.united(piece.box);
    row.fontSize = std::max(row.fontSize, piece.fontSize);
    row.pieces.push_back(std::move(piece));
}

bool standsBeside(const PieceRow& row, const TextPiece& piece, const TableParameters::Tables& parameters) {
    if (piece.baseline - row.lastBaseline <= parameters.rowSnap * piece.fontSize)
        return true;
    bool hasNeighbour = false;
    for (const TextPiece& other : row.pieces) {
        const double shared = overlap(other.box.top, other.box.bottom, piece.box.top, piece.box.bottom);
        if (shared < parameters.besideOverlap * piece.box.height())
            continue;
        // Lines set so close that they overlap are one above the other all the same.
        if (overlap(other.box.left, other.box.right, piece.box.left, piece.box.right) > 0)
            return false;
        hasNeighbour = true;
    }
    return hasNeighbour;
}

} // namespace

TextPiece pieceOf(const Line& line, std::size_t lineIndex, std::size_t first, std::size_t end) {
    TextPiece piece{lineIndex, first, end, {}, line.baseline, line.fontSize};
    for (std::size_t i = first; i < end; ++i)
        piece.box = piece.box.united(line.words[i].box);
    piece.signLeft = piece.box.left;
    return piece;
}

namespace {

/// The word that stands next to `box` on its baseline, to the left (-1) or to the right (1), in whatever line; nothing
/// where there is none.
std::optional<TextPiece> nextOnBaseline(const std::vector<Line>& lines, const Line& line, const Rect& box, int side,
                                        const TableParameters::Tables& parameters) {
    std::optional<TextPiece> next;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (std::abs(lines[i].baseline - line.baseline) > parameters.sameBaseline || lines[i].angle != 0)
            continue;
        for (std::size_t j = 0; j < lines[i].words.size(); ++j) {
            const Rect& other = lines[i].words[j].box;
            const double distance = side < 0 ? box.left - other.right : other.left - box.right;
            if (distance < -parameters.touch || distance >= least)
                continue;
            least = distance;
            next = pieceOf(lines[i], i, j, j + 1);
        }
    }
    return next;
}

/// Whether the sign of a currency stands behind a number, but before its own: "$ 1,204 $  1,150".
bool beginsAmount(const Line& line, std::size_t lineIndex, std::size_t word, const std::vector<Line>& lines,
                  const TableParameters::Tables& parameters) {
    const TextPiece before = pieceOf(line, lineIndex, word - 1, word);
    if (!isCurrencySign(textOf(pieceOf(line, lineIndex, word, word + 1), lines)) || !isNumeric(before, lines))
        return false;
    const auto first = nextOnBaseline(lines, line, before.box, -1, parameters);
    const auto amount = nextOnBaseline(lines, line, line.words[word].box, 1, parameters);
    return first && isCurrencySign(textOf(*first, lines)) && amount && isNumeric(*amount, lines);
}

/// Whether the line is a row of numbers, which stand closer together than other texts of a table may.
bool isRowOfNumbers(const Line& line, std::size_t lineIndex, const std::vector<Line>& lines,
                    const TableParameters::Tables& parameters) {
    std::size_t numbers = 0;
    for (std::size_t i = 0; i < line.words.size(); ++i)
        numbers += isNumeric(pieceOf(line, lineIndex, i, i + 1), lines);
    return numbers >= parameters.fullRow && 2 * numbers >= line.words.size();
}

/// Cuts upright lines at their wide gaps and where `isCut` says so of the boxes of two words, the left one first.
template<typename Predicate>
std::vector<TextPiece> cutLines(const std::vector<Line>& lines, const TableParameters::Tables& parameters,
                                const Predicate& isCut) {
    std::vector<TextPiece> pieces;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Line& line = lines[i];
        if (line.angle != 0 || line.isVertical || line.words.empty())
            continue;
        const double widest = isRowOfNumbers(line, i, lines, parameters) ? parameters.minimumColumnGap * line.fontSize
                                                                         : widestBlank(line, parameters);
        std::size_t first = 0;
        for (std::size_t j = 1; j < line.words.size(); ++j) {
            const Rect& before = line.words[j - 1].box;
            const Rect& after = line.words[j].box;
            const bool isLeftFirst = before.left <= after.left;
            if (line.words[j].gapBefore != Gap::Tab && gapBetween(before, after) <= widest &&
                !beginsAmount(line, i, j, lines, parameters) &&
                !isCut(isLeftFirst ? before : after, isLeftFirst ? after : before))
                continue;
            pieces.push_back(pieceOf(line, i, first, j));
            first = j;
        }
        pieces.push_back(pieceOf(line, i, first, line.words.size()));
    }
    return pieces;
}

/// Gives the signs of currency that stand apart to their amounts.
std::vector<TextPiece> withSigns(std::vector<TextPiece> pieces, const std::vector<Line>& lines,
                                 const TableParameters::Tables& parameters) {
    std::vector<TextPiece> signs;
    for (const TextPiece& piece : pieces)
        if (piece.wordCount() == 1 && isCurrencySign(textOf(piece, lines)))
            signs.push_back(piece);
    for (const TextPiece& sign : signs) {
        TextPiece* amount = nullptr;
        for (TextPiece& piece : pieces)
            if (std::abs(piece.baseline - sign.baseline) <= parameters.sameBaseline &&
                piece.box.left >= sign.box.right - parameters.touch && (!amount || piece.box.left < amount->box.left))
                amount = &piece;
        if (!amount || !isNumeric(*amount, lines))
            continue;
        amount->signLeft = sign.box.left;
        std::erase_if(pieces, [&](const TextPiece& piece) {
            return piece.line == sign.line && piece.firstWord == sign.firstWord;
        });
    }
    return pieces;
}

} // namespace

std::vector<TextPiece> cutIntoPieces(const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    return withSigns(cutLines(lines, parameters, [](const Rect&, const Rect&) { return false; }), lines, parameters);
}

std::vector<TextPiece> cutIntoPieces(const PageText& page, const TableParameters::Tables& parameters) {
    const FilledCells cells(page.grounds, parameters);
    std::vector<TextPiece> pieces =
        withSigns(cutLines(page.lines, parameters,
                           [&](const Rect& left, const Rect& right) { return cells.meetBetween(left, right); }),
                  page.lines, parameters);
    for (TextPiece& piece : pieces)
        piece.filledCell = cells.cellAt(piece.box);
    return pieces;
}

std::vector<PieceRow> groupIntoRows(std::vector<TextPiece> pieces, const TableParameters::Tables& parameters) {
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const TextPiece& a, const TextPiece& b) { return a.baseline < b.baseline; });
    std::vector<PieceRow> rows;
    for (TextPiece& piece : pieces) {
        const bool isBeside = !rows.empty() && standsBeside(rows.back(), piece, parameters);
        if (!isBeside)
            rows.emplace_back();
        addTo(rows.back(), std::move(piece));
    }
    for (PieceRow& row : rows)
        std::sort(row.pieces.begin(), row.pieces.end(),
                  [](const TextPiece& a, const TextPiece& b) { return a.box.left < b.box.left; });
    return rows;
}

bool isUpperLineOf(const PieceRow& row, const PieceRow& below, const TableParameters::Tables& parameters) {
    if (below.baseline - row.lastBaseline > parameters.wrapPitch * below.fontSize)
        return false;
    return std::all_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
        const auto over = std::count_if(below.pieces.begin(), below.pieces.end(), [&](const TextPiece& other) {
            return overlap(piece.box.left, piece.box.right, other.box.left, other.box.right) > 0;
        });
        return over == 1 && piece.box.left > below.pieces.front().box.right;
    });
}

bool beginsLikeSentence(const TextPiece& piece, const std::vector<Line>& lines) {
    const std::u32string text = utf32FromUtf8(textOf(piece, lines));
    return text.size() > 1 && isUpperCase(text[0]) && isLowerCase(text[1]);
}

bool hasRoomBehind(const TextPiece& above, const TextPiece& piece, const Rect& column, const std::vector<Line>& lines,
                   const TableParameters::Tables& parameters) {
    const double firstWord = lines[piece.line].words[piece.firstWord].box.width();
    const double room = lines[above.line].isRightToLeft ? above.box.left - column.left : column.right - above.box.right;
    return firstWord + parameters.blankWidth * piece.fontSize <= room;
}

bool isBullet(std::string_view text) {
    static constexpr std::array<std::string_view, 9> kBullets{"\u2022", "\u25E6", "\u25AA", "\u25CF", "\u25CB",
                                                              "\u25A0", "\u2023", "\u00B7", "o"};
    return std::ranges::find(kBullets, text) != kBullets.end();
}

bool isCurrencySign(std::string_view text) {
    static constexpr std::array<std::string_view, 5> kSigns{"$", "\u20AC", "\u00A3", "\u00A5", "US$"};
    return std::ranges::find(kSigns, text) != kSigns.end();
}

std::string textOf(const TextPiece& piece, const std::vector<Line>& lines) {
    std::string text;
    for (std::size_t i = piece.firstWord; i < piece.endWord; ++i) {
        if (!text.empty())
            text += ' ';
        for (const Span& span : lines[piece.line].words[i].spans)
            text += span.text;
    }
    return text;
}

bool isNumeric(const TextPiece& piece, const std::vector<Line>& lines) {
    int digits = 0;
    int letters = 0;
    const std::string text = textOf(piece, lines);
    for (const char c : text) {
        digits += c >= '0' && c <= '9';
        letters += (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (static_cast<unsigned char>(c) & 0x80) != 0;
    }
    // Units, currencies and months come with a few letters.
    return isDash(text) || (digits > 0 && digits >= letters);
}

} // namespace orvane::layout
