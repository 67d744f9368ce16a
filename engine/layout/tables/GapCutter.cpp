#include "layout/tables/GapCutter.h"

#include "layout/support/Tally.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

/// A gap, and the edges that most of the texts beside it keep.
struct GapEdges {
    ColumnGap gap;
    std::optional<double> ends;   ///< of the texts to the left
    std::optional<double> begins; ///< the texts to the right
};

/// The place at which most of the values lie.
std::optional<double> keptEdge(const std::vector<double>& values, const TableParameters::Tables& parameters) {
    const DenseRange range = densestRange(values, parameters.startSnap);
    const double least = parameters.keptEdgeShareRuled * static_cast<double>(values.size());
    const bool isKept = range.count >= static_cast<std::size_t>(parameters.minimumRowsParted) &&
                        static_cast<double>(range.count) >= least;
    return isKept ? std::optional(range.mean) : std::nullopt;
}

std::vector<GapEdges> edgesOf(const std::vector<ColumnGap>& gaps, const std::vector<PieceRow>& rows,
                              const TableParameters::Tables& parameters) {
    std::vector<std::vector<double>> lefts(gaps.size() + 1);
    std::vector<std::vector<double>> rights(gaps.size() + 1);
    for (const PieceRow& row : rows) {
        for (const TextPiece& piece : row.pieces) {
            const ColumnRange range = columnsOf(piece, gaps);
            lefts[static_cast<std::size_t>(range.first)].push_back(piece.box.left);
            rights[static_cast<std::size_t>(range.last)].push_back(piece.box.right);
        }
    }
    std::vector<GapEdges> edges;
    for (std::size_t i = 0; i < gaps.size(); ++i)
        edges.push_back({gaps[i], keptEdge(rights[i], parameters), keptEdge(lefts[i + 1], parameters)});
    return edges;
}

double spaceBefore(const Line& line, std::size_t word) {
    const Rect& before = line.words[word - 1].box;
    const Rect& after = line.words[word].box;
    return std::max(after.left - before.right, before.left - after.right);
}

class PieceCutter {
public:
    PieceCutter(const std::vector<PieceRow>& rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
                const TableParameters::Tables& parameters)
        : m_edges(edgesOf(gaps, rows, parameters))
        , m_lines(lines)
        , m_parameters(parameters) {
        std::vector<double> blanks;
        for (const PieceRow& row : rows)
            for (const TextPiece& piece : row.pieces)
                for (std::size_t word = piece.firstWord + 1; word < piece.endWord; ++word)
                    blanks.push_back(spaceBefore(lines[piece.line], word) / lines[piece.line].fontSize);
        m_blank = mostFrequent(blanks, parameters.blankSlack);
    }

    void cut(PieceRow& row) const {
        std::vector<TextPiece> pieces;
        for (const TextPiece& piece : row.pieces)
            cutPiece(
                piece, m_lines[piece.line], [&](std::size_t word) { return isCutBefore(piece, word); }, pieces);
        std::sort(pieces.begin(), pieces.end(),
                  [](const TextPiece& a, const TextPiece& b) { return a.box.left < b.box.left; });
        row.pieces = std::move(pieces);
    }

private:
    bool isCutBefore(const TextPiece& piece, std::size_t word) const {
        return std::any_of(m_edges.begin(), m_edges.end(), [&](const GapEdges& edges) {
            return crosses(piece, edges.gap) && areInTwoCells(piece, word, edges);
        });
    }

    bool areInTwoCells(const TextPiece& piece, std::size_t word, const GapEdges& edges) const {
        const Line& line = m_lines[piece.line];
        const Rect& before = line.words[word - 1].box;
        const Rect& after = line.words[word].box;
        const Rect& left = before.left < after.left ? before : after;
        const Rect& right = before.left < after.left ? after : before;
        if (left.right > edges.gap.right || right.left < edges.gap.left)
            return false;
        const bool areNumbers = isNumeric(pieceOf(line, piece.line, word - 1, word), m_lines) &&
                                isNumeric(pieceOf(line, piece.line, word, word + 1), m_lines);
        const bool beginsColumn = edges.begins && std::abs(right.left - *edges.begins) <= m_parameters.startSnap &&
                                  isSpacedUnlikeText(piece, word);
        const bool endsColumn = edges.ends && std::abs(left.right - *edges.ends) <= m_parameters.startSnap &&
                                isSpacedUnlikeTable(piece, word);
        return areNumbers || beginsColumn || endsColumn ||
               right.left - left.right > m_parameters.pieceGap * line.fontSize;
    }

    /// Whether the space before the word is unlike the other blanks of its piece.
    bool isSpacedUnlikeText(const TextPiece& piece, std::size_t index) const {
        const Line& line = m_lines[piece.line];
        std::vector<double> blanks;
        for (std::size_t word = piece.firstWord + 1; word < piece.endWord; ++word)
            if (word != index)
                blanks.push_back(spaceBefore(line, word));
        if (blanks.empty())
            return false;
        const auto middle = blanks.begin() + static_cast<std::ptrdiff_t>(blanks.size() / 2);
        std::nth_element(blanks.begin(), middle, blanks.end());
        return std::abs(spaceBefore(line, index) - *middle) > m_parameters.blankSlack * line.fontSize;
    }

    /// Whether the space before the word is wider than the blanks of most texts.
    bool isSpacedUnlikeTable(const TextPiece& piece, std::size_t word) const {
        const Line& line = m_lines[piece.line];
        return m_blank && spaceBefore(line, word) > (*m_blank + m_parameters.blankSlack) * line.fontSize;
    }

    std::vector<GapEdges> m_edges;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
    std::optional<double> m_blank; ///< the most frequent; share of the font size
};

} // namespace

void cutAtGaps(std::vector<PieceRow>& rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
               const TableParameters::Tables& parameters) {
    const PieceCutter cutter(rows, gaps, lines, parameters);
    for (PieceRow& row : rows)
        cutter.cut(row);
}

} // namespace orvane::layout
