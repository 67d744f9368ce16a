#include "layout/tables/TightGaps.h"

#include "layout/support/Tally.h"
#include "layout/tables/ItemLabels.h"
#include "layout/text/LabelText.h"

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

/// Values of which the first come and go.
class MovingRange {
public:
    void add(double value) { m_values.insert(value); }
    void remove(double value) { m_values.erase(m_values.find(value)); }
    std::size_t size() const { return m_values.size(); }
    double least() const { return *m_values.begin(); }
    double most() const { return *m_values.rbegin(); }
    double spread() const { return m_values.empty() ? 0 : most() - least(); }

private:
    std::multiset<double> m_values;
};

/// Words that begin at one place. All starts of a table go through it, so that none is looked at anew for each place.
class StartWindow {
public:
    /// `fontSize` that of the table, `blank` the usual one between two words.
    StartWindow(std::size_t rows, double fontSize, double blank, const TableParameters::Tables& parameters)
        : m_startsOfRow(rows)
        , m_fontSize(fontSize)
        , m_blank(blank)
        , m_parameters(parameters) {}

    void add(const Start& start) {
        m_rows += m_startsOfRow[start.row]++ == 0;
        m_labels += start.isBehindLabel;
        m_ranges += start.isOfRange;
        if (start.isWide)
            m_wideEnds.add(start.rightBefore);
        else
            change(start, [](MovingRange& range, double value) { range.add(value); });
    }

    void remove(const Start& start) {
        m_rows -= --m_startsOfRow[start.row] == 0;
        m_labels -= start.isBehindLabel;
        m_ranges -= start.isOfRange;
        if (start.isWide)
            m_wideEnds.remove(start.rightBefore);
        else
            change(start, [](MovingRange& range, double value) { range.remove(value); });
    }

    /// Whether the words begin a column there.
    bool showsColumn() const {
        const std::size_t starts = m_wideEnds.size() + m_ends.size();
        if (m_rows < m_parameters.fewestPartedRows || 2 * m_labels > starts ||
            m_ranges >= m_parameters.minimumRowsParted)
            return false;
        if (static_cast<int>(m_wideEnds.size()) < m_parameters.minimumRowsParted)
            return followsColumn();
        // A head that begins behind all texts of the column to its left is of the right one as a whole.
        return m_lefts.size() == 0 || m_lefts.most() < std::max(m_wideEnds.most(), 0.0);
    }

private:
    template<typename Change>
    void change(const Start& start, const Change& apply) {
        apply(m_ends, start.rightBefore);
        apply(m_lefts, start.leftBefore);
        apply(m_rights, start.right);
        apply(m_spaces, start.left - start.rightBefore);
        if (start.isBehindNumber)
            apply(m_numbers, start.leftBefore);
    }

    /// Whether the texts before the words all end at one place, and are numbers of different length or set apart by
    /// more than a blank. Texts of one length behind them may be units.
    bool followsColumn() const {
        const double uneven = m_parameters.unevenTexts * m_fontSize;
        if (static_cast<int>(m_ends.size()) <= m_parameters.fewestPartedRows || m_rights.spread() <= uneven ||
            m_ends.spread() > m_parameters.startSnap)
            return false;
        return (2 * m_numbers.size() >= m_ends.size() && m_numbers.spread() > uneven) ||
               m_spaces.least() > m_blank + m_parameters.blankSlack * m_fontSize;
    }

    std::vector<int> m_startsOfRow;
    double m_fontSize;
    double m_blank;
    const TableParameters::Tables& m_parameters;
    int m_rows = 0; ///< with a start
    std::size_t m_labels = 0;
    int m_ranges = 0;
    MovingRange m_wideEnds; ///< where the texts before those end that begin a piece
    // Of the others:
    MovingRange m_ends;    ///< where the texts before them end
    MovingRange m_lefts;   ///< where these begin
    MovingRange m_rights;  ///< where the texts that they begin end
    MovingRange m_spaces;  ///< how wide the blanks before them are
    MovingRange m_numbers; ///< where the numbers alone before them begin
};

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
        StartWindow window(m_rows.size(), m_rows.front().fontSize, m_blank, m_parameters);
        auto end = m_starts.begin();
        for (auto first = m_starts.begin(); first != m_starts.end();) {
            for (; end != m_starts.end() && end->left <= first->left + m_parameters.startSnap; ++end)
                window.add(*end);
            if (!window.showsColumn()) {
                window.remove(*first++);
                continue;
            }
            const ColumnGap gap = gapBefore(first->left);
            if (gap.width() > 0 && !isCrossed(gap))
                gaps.push_back(gap);
            while (first != end)
                window.remove(*first++);
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
