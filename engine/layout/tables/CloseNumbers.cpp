#include "layout/tables/CloseNumbers.h"

#include "layout/text/LabelText.h"

#include <algorithm>
#include <cctype>
#include <limits>
#include <optional>
#include <set>

namespace orvane::layout {
namespace {

/// Two numbers next to each other in a row.
struct NumberPair {
    std::size_t row = 0;
    Rect left;
    Rect right;
    bool isThousands = false; ///< the right one begins with three digits
    bool isNarrow = false;    ///< both are of one piece
};

bool beginsWithThreeDigits(const std::string& text) {
    const auto digits = std::find_if_not(text.begin(), text.end(),
                                         [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; });
    return digits - text.begin() == 3;
}

/// What shows two columns of numbers.
enum class NumberEdges {
    Ends,    ///< the left ones end at one place
    Middles, ///< both are centred: their middles stand at two places
};

class PairFinder {
public:
    PairFinder(const std::vector<PieceRow>& rows, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_lines(lines)
        , m_parameters(parameters) {
        for (std::size_t row = 0; row < rows.size(); ++row)
            collectPairs(row);
    }

    /// The gaps that `edges` show, left to right.
    std::vector<ColumnGap> find(NumberEdges edges) {
        const auto placeOf = [edges](const NumberPair& pair) {
            return edges == NumberEdges::Ends ? pair.left.right : pair.left.centerX();
        };
        std::sort(m_pairs.begin(), m_pairs.end(),
                  [&](const NumberPair& a, const NumberPair& b) { return placeOf(a) < placeOf(b); });
        std::vector<ColumnGap> gaps;
        for (auto first = m_pairs.begin(); first != m_pairs.end();) {
            const auto end = std::find_if(first, m_pairs.end(), [&](const NumberPair& pair) {
                return placeOf(pair) > placeOf(*first) + m_parameters.startSnap;
            });
            const auto gap = gapOf({first, end}, edges);
            first = gap ? end : first + 1;
            if (gap)
                gaps.push_back(*gap);
        }
        return gaps;
    }

private:
    void collectPairs(std::size_t row) {
        std::vector<TextPiece> words;
        for (const TextPiece& piece : m_rows[row].pieces) {
            for (std::size_t word = piece.firstWord; word < piece.endWord; ++word)
                words.push_back(pieceOf(m_lines[piece.line], piece.line, word, word + 1));
            const std::size_t first = words.size() - piece.wordCount();
            for (std::size_t i = std::max<std::size_t>(first, 1); i < words.size(); ++i)
                addPair(row, words[i - 1], words[i], i > first);
        }
    }

    void addPair(std::size_t row, const TextPiece& left, const TextPiece& right, bool isNarrow) {
        const std::string text = textOf(right, m_lines);
        // A dash between two numbers may lead from the one to the other, and the share stands in brackets behind its
        // number.
        const bool isShare = text.front() == '(' && textOf(left, m_lines).front() != '(';
        if (isShare || left.box.right >= right.box.left || isDash(text) || isDash(textOf(left, m_lines)) ||
            !isNumeric(left, m_lines) || !isNumeric(right, m_lines))
            return;
        m_pairs.push_back({row, left.box, right.box, beginsWithThreeDigits(text), isNarrow});
    }

    /// The gap behind numbers that end, or have their middle, at one place.
    std::optional<ColumnGap> gapOf(std::span<const NumberPair> pairs, NumberEdges edges) const {
        const bool hasNarrow = std::ranges::any_of(pairs, [](const NumberPair& pair) { return pair.isNarrow; });
        if (!hasNarrow || (edges == NumberEdges::Middles && !areCentred(pairs)))
            return std::nullopt;
        std::set<std::size_t> rows;
        ColumnGap gap{pairs.front().left.right, pairs.front().right.left};
        std::size_t thousands = 0;
        double shortest = std::numeric_limits<double>::infinity();
        double longest = 0;
        for (const NumberPair& pair : pairs) {
            shortest = std::min(shortest, pair.right.width());
            longest = std::max(longest, pair.right.width());
            rows.insert(pair.row);
            gap.left = std::max(gap.left, pair.left.right);
            gap.right = std::min(gap.right, pair.right.left);
            thousands += pair.isThousands;
        }
        // A date and its time are of one length, too.
        const bool areUneven = longest - shortest > m_parameters.unevenTexts * m_rows.front().fontSize;
        const bool showsColumns = (areUneven || areHeaded(pairs)) &&
                                  static_cast<int>(rows.size()) > m_parameters.fewestPartedRows &&
                                  2 * thousands < pairs.size() && gap.width() > 0;
        return showsColumns && !isCrossed(gap) ? std::optional(gap) : std::nullopt;
    }

    /// Whether the right numbers have their middle at one place, too, and the left ones are of different length.
    bool areCentred(std::span<const NumberPair> pairs) const {
        const auto middles =
            std::minmax_element(pairs.begin(), pairs.end(), [](const NumberPair& a, const NumberPair& b) {
                return a.right.centerX() < b.right.centerX();
            });
        const auto lengths =
            std::minmax_element(pairs.begin(), pairs.end(), [](const NumberPair& a, const NumberPair& b) {
                return a.left.width() < b.left.width();
            });
        return middles.second->right.centerX() - middles.first->right.centerX() <= m_parameters.startSnap &&
               lengths.second->left.width() - lengths.first->left.width() >
                   m_parameters.unevenTexts * m_rows.front().fontSize;
    }

    /// Whether some row above has a text over the left numbers and another one over the right ones.
    bool areHeaded(std::span<const NumberPair> pairs) const {
        Rect left, right;
        std::size_t firstRow = m_rows.size();
        for (const NumberPair& pair : pairs) {
            left = left.united(pair.left);
            right = right.united(pair.right);
            firstRow = std::min(firstRow, pair.row);
        }
        const auto isOver = [](const Rect& head, const Rect& column, const Rect& other) {
            return overlap(head.left, head.right, column.left, column.right) > 0 &&
                   overlap(head.left, head.right, other.left, other.right) <= 0;
        };
        return std::any_of(
            m_rows.begin(), m_rows.begin() + static_cast<std::ptrdiff_t>(firstRow), [&](const PieceRow& row) {
                const auto hasOver = [&](const Rect& column, const Rect& other) {
                    return std::any_of(row.pieces.begin(), row.pieces.end(),
                                       [&](const TextPiece& head) { return isOver(head.box, column, other); });
                };
                return hasOver(left, right) && hasOver(right, left);
            });
    }

    /// Whether too many rows have a word over the gap.
    bool isCrossed(const ColumnGap& gap) const {
        const auto crossed = std::count_if(m_rows.begin(), m_rows.end(), [&](const PieceRow& row) {
            return std::any_of(row.pieces.begin(), row.pieces.end(), [&](const TextPiece& piece) {
                const std::vector<Word>& words = m_lines[piece.line].words;
                return std::any_of(words.begin() + static_cast<std::ptrdiff_t>(piece.firstWord),
                                   words.begin() + static_cast<std::ptrdiff_t>(piece.endWord), [&](const Word& word) {
                                       return word.box.left < gap.left && word.box.right > gap.right;
                                   });
            });
        });
        return static_cast<double>(crossed) > m_parameters.tightCrossedShare * static_cast<double>(m_rows.size());
    }

    const std::vector<PieceRow>& m_rows;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
    std::vector<NumberPair> m_pairs; ///< by where the left ones end
};

/// Cuts the pieces of a row between two numbers that stand at both sides of a gap.
void cutBetweenNumbers(PieceRow& row, const std::vector<ColumnGap>& gaps, NumberEdges edges,
                       const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    std::vector<TextPiece> pieces;
    for (const TextPiece& piece : row.pieces) {
        const Line& line = lines[piece.line];
        const auto isNumber = [&](std::size_t word) {
            return isNumeric(pieceOf(line, piece.line, word, word + 1), lines);
        };
        const auto isCutBefore = [&](std::size_t word) {
            return std::any_of(gaps.begin(), gaps.end(), [&](const ColumnGap& gap) {
                const double end = line.words[word - 1].box.right;
                const bool isAtEdge = edges == NumberEdges::Ends ? end >= gap.left - parameters.startSnap
                                                                 : isNumber(word - 1) && isNumber(word);
                return isAtEdge && end <= gap.left && line.words[word].box.left >= gap.right;
            });
        };
        cutPiece(piece, line, isCutBefore, pieces);
    }
    row.pieces = std::move(pieces);
}

} // namespace

std::vector<ColumnGap> cutAtCloseNumbers(std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                                         const TableParameters::Tables& parameters) {
    std::vector<ColumnGap> all;
    for (const NumberEdges edges : {NumberEdges::Ends, NumberEdges::Middles}) {
        const std::vector<ColumnGap> gaps = PairFinder(rows, lines, parameters).find(edges);
        for (PieceRow& row : rows)
            if (!gaps.empty())
                cutBetweenNumbers(row, gaps, edges, lines, parameters);
        all.insert(all.end(), gaps.begin(), gaps.end());
    }
    std::sort(all.begin(), all.end(), [](const ColumnGap& a, const ColumnGap& b) { return a.left < b.left; });
    return all;
}

} // namespace orvane::layout
