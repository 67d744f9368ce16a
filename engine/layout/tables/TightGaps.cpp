#include "layout/tables/TightGaps.h"

#include "layout/support/Tally.h"
#include "layout/tables/ItemLabels.h"

#include <algorithm>
#include <limits>
#include <set>

namespace orvane::layout {
namespace {

/// A word that has text to its left in its row.
struct Start {
    std::size_t row = 0;
    double left = 0;
    double right = 0;            ///< where the text that it begins ends
    double leftBefore = 0;       ///< where the text to its left begins
    double rightBefore = 0;      ///< and where that ends
    bool isWide = false;         ///< it begins a piece
    bool isBehindNumber = false; ///< of which there is nothing else to its left
    bool isBehindLabel = false;  ///< the same of the label of an item in a list
    bool isOfRange = false;      ///< a dash leads to it from what stands to its left
};

double spread(std::vector<double> values) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return values.empty() ? 0 : *most - *least;
}

class TightGapFinder {
public:
    TightGapFinder(const std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                   const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_lines(lines)
        , m_parameters(parameters) {
        for (std::size_t row = 0; row < rows.size(); ++row)
            collectStarts(row);
        std::sort(m_starts.begin(), m_starts.end(), [](const Start& a, const Start& b) { return a.left < b.left; });
        std::vector<double> blanks;
        for (const Start& start : m_starts)
            if (!start.isWide)
                blanks.push_back(start.left - start.rightBefore);
        m_blank = blanks.empty() ? 0 : densestRange(blanks, parameters.blankSlack * rows.front().fontSize).mean;
    }

    std::vector<ColumnGap> find() const {
        std::vector<ColumnGap> gaps;
        for (auto first = m_starts.begin(); first != m_starts.end();) {
            const auto end = std::find_if(first, m_starts.end(), [&](const Start& start) {
                return start.left > first->left + m_parameters.startSnap;
            });
            if (!showsColumn({first, end})) {
                ++first;
                continue;
            }
            const ColumnGap gap = gapBefore(first->left);
            if (gap.width() > 0 && !isCrossed(gap))
                gaps.push_back(gap);
            first = end;
        }
        return gaps;
    }

private:
    void collectStarts(std::size_t rowIndex) {
        const PieceRow& row = m_rows[rowIndex];
        for (std::size_t i = 0; i < row.pieces.size(); ++i) {
            const TextPiece& piece = row.pieces[i];
            const Line& line = m_lines[piece.line];
            if (line.isRightToLeft)
                continue;
            if (i > 0) {
                const Rect& before = row.pieces[i - 1].box;
                m_starts.push_back({rowIndex, piece.box.left, piece.box.right, before.left, before.right, true, false,
                                    isLabel(row.pieces[i - 1]), endsInDash(row.pieces[i - 1])});
            }
            for (std::size_t word = piece.firstWord + 1; word < piece.endWord; ++word) {
                const TextPiece before = pieceOf(line, piece.line, word - 1, word);
                // Blanks part the thousands of a number, too.
                const bool isOfRange = isDash(textOf(before, m_lines));
                if (!isOfRange && isNumeric(before, m_lines) &&
                    isNumeric(pieceOf(line, piece.line, word, word + 1), m_lines))
                    continue;
                const bool isFirst = word == piece.firstWord + 1;
                m_starts.push_back({rowIndex, line.words[word].box.left, piece.box.right, piece.box.left,
                                    before.box.right, false, isFirst && isNumeric(before, m_lines) && !isLabel(before),
                                    isFirst && isLabel(before), isOfRange});
            }
        }
    }

    bool endsInDash(const TextPiece& piece) const {
        return isDash(textOf(pieceOf(m_lines[piece.line], piece.line, piece.endWord - 1, piece.endWord), m_lines));
    }

    bool isLabel(const TextPiece& piece) const { return piece.wordCount() == 1 && isItemLabel(textOf(piece, m_lines)); }

    /// Whether words that begin at one place begin a column there.
    bool showsColumn(std::span<const Start> starts) const {
        std::set<std::size_t> rows;
        std::vector<Start> narrow;
        int wide = 0;
        std::size_t labels = 0;
        int ranges = 0;
        double rightBefore = 0;
        for (const Start& start : starts) {
            rows.insert(start.row);
            labels += start.isBehindLabel;
            ranges += start.isOfRange;
            wide += start.isWide;
            if (start.isWide)
                rightBefore = std::max(rightBefore, start.rightBefore);
            else
                narrow.push_back(start);
        }
        if (static_cast<int>(rows.size()) < m_parameters.fewestPartedRows || 2 * labels > starts.size() ||
            ranges >= m_parameters.minimumRowsParted)
            return false;
        if (wide < m_parameters.minimumRowsParted)
            return followsColumn(narrow);
        // A head that begins behind all texts of the column to its left is of the right one as a whole.
        return std::all_of(narrow.begin(), narrow.end(),
                           [&](const Start& start) { return start.leftBefore < rightBefore; });
    }

    /// Whether the texts before the words all end at one place, and are numbers of different length or set apart by
    /// more than a blank. Texts of one length behind them may be units.
    bool followsColumn(const std::vector<Start>& starts) const {
        std::vector<double> ends, rights, spaces, numbers;
        for (const Start& start : starts) {
            ends.push_back(start.rightBefore);
            rights.push_back(start.right);
            spaces.push_back(start.left - start.rightBefore);
            if (start.isBehindNumber)
                numbers.push_back(start.leftBefore);
        }
        const double size = m_rows.front().fontSize;
        const double uneven = m_parameters.unevenTexts * size;
        if (static_cast<int>(starts.size()) <= m_parameters.fewestPartedRows || spread(rights) <= uneven ||
            densestRange(ends, m_parameters.startSnap).count < ends.size())
            return false;
        return (2 * numbers.size() >= starts.size() && spread(numbers) > uneven) ||
               *std::min_element(spaces.begin(), spaces.end()) > m_blank + m_parameters.blankSlack * size;
    }

    /// The strip left of `x` that the words which end before it leave free.
    ColumnGap gapBefore(double x) const {
        ColumnGap gap{-std::numeric_limits<double>::infinity(), x};
        forWords([&](const PieceRow&, const Rect& word) {
            if (word.right <= x)
                gap.left = std::max(gap.left, word.right);
        });
        return gap;
    }

    /// Whether too many rows have a word over the gap.
    bool isCrossed(const ColumnGap& gap) const {
        std::set<const PieceRow*> crossed;
        forWords([&](const PieceRow& row, const Rect& word) {
            if (word.left < gap.right && word.right > gap.right)
                crossed.insert(&row);
        });
        return static_cast<double>(crossed.size()) >
               m_parameters.tightCrossedShare * static_cast<double>(m_rows.size());
    }

    template<typename Visit>
    void forWords(const Visit& visit) const {
        for (const PieceRow& row : m_rows)
            for (const TextPiece& piece : row.pieces)
                for (std::size_t word = piece.firstWord; word < piece.endWord; ++word)
                    visit(row, m_lines[piece.line].words[word].box);
    }

    const std::vector<PieceRow>& m_rows;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
    std::vector<Start> m_starts; ///< by their left
    double m_blank = 0;          ///< the usual one between two words
};

/// Cuts the pieces of a row before the words that begin right behind a gap.
void cutBehind(PieceRow& row, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters) {
    std::vector<TextPiece> pieces;
    for (const TextPiece& piece : row.pieces) {
        const Line& line = lines[piece.line];
        const auto isCutBefore = [&](std::size_t word) {
            return std::any_of(gaps.begin(), gaps.end(), [&](const ColumnGap& gap) {
                const double offset = line.words[word].box.left - gap.right;
                return !line.isRightToLeft && offset >= 0 && offset <= parameters.startSnap;
            });
        };
        cutPiece(piece, line, isCutBefore, pieces);
    }
    row.pieces = std::move(pieces);
}

} // namespace

std::vector<ColumnGap> cutAtTightGaps(std::vector<PieceRow>& rows, const std::vector<Line>& lines,
                                      const TableParameters::Tables& parameters) {
    if (rows.empty())
        return {};
    std::vector<ColumnGap> gaps = TightGapFinder(rows, lines, parameters).find();
    for (PieceRow& row : rows)
        if (!gaps.empty())
            cutBehind(row, gaps, lines, parameters);
    return gaps;
}

} // namespace orvane::layout
