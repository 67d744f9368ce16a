#include "layout/tables/RuleLabels.h"

#include "layout/tables/ProseMask.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace orvane::layout {
namespace {

class LabelFinder {
public:
    LabelFinder(const std::vector<TextPiece>& pieces, const std::vector<Line>& lines,
                const TableParameters::Tables& parameters)
        : m_pieces(pieces)
        , m_lines(lines)
        , m_parameters(parameters)
        , m_isProse(markProse(pieces, lines, parameters)) {}

    /// Where the labels of the rows between or below the rules begin; nothing when these have none outside.
    std::optional<double> labelsOf(const RuleStack& stack) const {
        const std::vector<PieceRow> rows = numberRows(stack);
        if (static_cast<int>(rows.size()) < m_parameters.fewestPartedRows)
            return std::nullopt;
        std::vector<char> isLabelled(rows.size(), 0);
        double left = stack.front().left;
        std::size_t labels = 0;
        std::size_t others = 0;
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            const TextPiece& piece = m_pieces[i];
            if (piece.box.right > stack.front().left || piece.baseline < rows.front().box.top ||
                piece.baseline > rows.back().box.bottom)
                continue;
            const auto row = std::find_if(rows.begin(), rows.end(), [&](const PieceRow& candidate) {
                return std::abs(candidate.baseline - piece.baseline) <= m_parameters.rowSnap * piece.fontSize;
            });
            if (m_isProse[i])
                return std::nullopt;
            row == rows.end() ? ++others : ++labels;
            if (row != rows.end())
                isLabelled[static_cast<std::size_t>(row - rows.begin())] = !isNumeric(piece, m_lines);
            left = std::min(left, piece.box.left);
        }
        const auto labelled = std::count(isLabelled.begin(), isLabelled.end(), 1);
        const bool areLabels =
            static_cast<double>(labelled) >= m_parameters.labelledRowShare * static_cast<double>(rows.size()) &&
            labels > others;
        return areLabels ? std::optional(left) : std::nullopt;
    }

private:
    /// The rows within the extent of the rules; none when they have labels there.
    std::vector<PieceRow> numberRows(const RuleStack& stack) const {
        std::vector<TextPiece> within;
        for (const TextPiece& piece : m_pieces)
            if (piece.baseline > stack.front().y && piece.baseline < stack.back().y &&
                piece.box.left >= stack.front().left - m_parameters.endSnap &&
                piece.box.right <= stack.front().right + m_parameters.endSnap)
                within.push_back(piece);
        std::vector<PieceRow> rows = groupIntoRows(std::move(within), m_parameters);
        const std::vector<PieceRow> below = rowsBelow(stack.back(), m_pieces, m_parameters);
        rows.insert(rows.end(), below.begin(), below.end());
        std::erase_if(rows, [&](const PieceRow& row) { return row.pieces.size() < 2; });
        const auto numbers = std::count_if(rows.begin(), rows.end(),
                                           [&](const PieceRow& row) { return isNumeric(row.pieces.front(), m_lines); });
        if (static_cast<double>(numbers) < m_parameters.numberedShare * static_cast<double>(rows.size()))
            rows.clear();
        return rows;
    }

    const std::vector<TextPiece>& m_pieces;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
    std::vector<char> m_isProse;
};

bool areOfOneExtent(const RuleStack& a, const RuleStack& b, const TableParameters::Tables& parameters) {
    return std::abs(a.front().left - b.front().left) <= parameters.endSnap &&
           std::abs(a.front().right - b.front().right) <= parameters.endSnap;
}

} // namespace

std::vector<RuleStack> withLabels(std::vector<RuleStack> stacks, const std::vector<TextPiece>& pieces,
                                  const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    const LabelFinder finder(pieces, lines, parameters);
    std::vector<RuleStack> joined;
    std::vector<RuleStack> widened;
    for (RuleStack& stack : stacks) {
        const std::optional<double> left = finder.labelsOf(stack);
        for (RuleLevel& level : stack)
            level.left = left.value_or(level.left);
        (left ? widened : joined).push_back(std::move(stack));
    }
    for (RuleStack& stack : widened) {
        const auto same = std::find_if(joined.begin(), joined.end(), [&](const RuleStack& other) {
            return areOfOneExtent(stack, other, parameters);
        });
        if (same == joined.end()) {
            joined.push_back(std::move(stack));
            continue;
        }
        same->insert(same->end(), stack.begin(), stack.end());
        std::sort(same->begin(), same->end(), [](const RuleLevel& a, const RuleLevel& b) { return a.y < b.y; });
    }
    return joined;
}

} // namespace orvane::layout
