#include "layout/tables/SpacedRows.h"

#include <algorithm>
#include <map>
#include <set>

namespace orvane::layout {

double spaceAbove(std::span<const PieceRow> rows, std::size_t i) {
    return std::max(0.0, rows[i].box.top - rows[i - 1].box.bottom);
}

std::optional<double> leastRowSpace(std::span<const PieceRow> rows, const TableParameters::Tables& parameters) {
    std::vector<double> spaces;
    double size = 0;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        spaces.push_back(spaceAbove(rows, i));
        size = std::max(size, rows[i].fontSize);
    }
    std::sort(spaces.begin(), spaces.end());
    std::size_t best = 0;
    for (std::size_t i = 2; i + 1 < spaces.size(); ++i)
        if (best == 0 || spaces[i] - spaces[i - 1] > spaces[best] - spaces[best - 1])
            best = i;
    if (best == 0 || spaces[best] - spaces[best - 1] < parameters.rowSpaceJump * size ||
        spaces[best - 1] > parameters.widestLineSpace * size)
        return std::nullopt;
    return spaces[best];
}

namespace {

/// Asks the rows between two spaces whether their texts run on from line to line.
class RunningRows {
public:
    RunningRows(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps, const std::vector<Line>& lines,
                const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_gaps(gaps)
        , m_lines(lines)
        , m_parameters(parameters) {
        for (const PieceRow& row : rows)
            for (const TextPiece& piece : row.pieces)
                if (const ColumnRange range = columnsOf(piece, gaps); range.first == range.last)
                    m_columns[range.first] = m_columns[range.first].united(piece.box);
    }

    /// Whether all groups fill several columns, and what follows their first lines goes on from these: phrases, not
    /// single words one below the other, and not in every column as rows of their own would.
    bool areTexts(const std::vector<RowGroup>& groups) {
        int ofSeveralLines = 0;
        int ofPhrases = 0;
        int uneven = 0;
        for (const RowGroup& group : groups) {
            GroupSeen seen;
            for (std::size_t i = group.first; i < group.end; ++i)
                if (!takeRow(m_rows[i], seen))
                    return false;
            if (seen.lastOfColumn.size() < 2)
                return false;
            ofSeveralLines += group.end - group.first > 1;
            ofPhrases += seen.hasPhrase;
            uneven += seen.isUneven;
        }
        return ofPhrases >= 2 && 2 * uneven >= ofSeveralLines;
    }

private:
    struct GroupSeen {
        std::map<int, const TextPiece*> lastOfColumn;
        bool hasPhrase = false; ///< words that were broken between lines
        bool isUneven = false;  ///< some line has not all the columns
    };

    bool takeRow(const PieceRow& row, GroupSeen& seen) const {
        const bool isFirst = seen.lastOfColumn.empty();
        std::size_t goingOn = 0;
        for (const TextPiece& piece : row.pieces) {
            const ColumnRange range = columnsOf(piece, m_gaps);
            if (range.first != range.last)
                return false;
            const TextPiece*& above = seen.lastOfColumn[range.first];
            if (above) {
                if ((isNumeric(piece, m_lines) && isNumeric(*above, m_lines)) ||
                    hasRoomBehind(*above, piece, m_columns.at(range.first), m_lines, m_parameters))
                    return false;
                seen.hasPhrase = seen.hasPhrase || above->wordCount() > 1;
                ++goingOn;
            }
            above = &piece;
        }
        seen.isUneven = seen.isUneven || (!isFirst && goingOn < m_columns.size());
        return true;
    }

    std::span<const PieceRow> m_rows;
    const std::vector<ColumnGap>& m_gaps;
    const std::vector<Line>& m_lines;
    const TableParameters::Tables& m_parameters;
    std::map<int, Rect> m_columns;
};

/// The columns that a row of text fills; nothing when a text stands in several.
std::optional<std::set<int>> columnsFilled(const PieceRow& row, const std::vector<ColumnGap>& gaps) {
    std::set<int> filled;
    for (const TextPiece& piece : row.pieces) {
        const ColumnRange range = columnsOf(piece, gaps);
        if (range.first != range.last)
            return std::nullopt;
        filled.insert(range.first);
    }
    return filled;
}

/// Whether all groups are labels of as many lines, with one line of text beside their first.
bool areLabelsOfLines(std::span<const PieceRow> rows, const std::vector<RowGroup>& groups,
                      const std::vector<ColumnGap>& gaps, const TableParameters::Tables& parameters) {
    const auto linesOf = [](const RowGroup& group) { return group.end - group.first; };
    const auto isLabelled = [&](const RowGroup& group) {
        const auto first = columnsFilled(rows[group.first], gaps);
        if (!first || first->size() <= gaps.size())
            return false;
        return std::all_of(rows.begin() + static_cast<std::ptrdiff_t>(group.first) + 1,
                           rows.begin() + static_cast<std::ptrdiff_t>(group.end),
                           [&](const PieceRow& row) { return columnsFilled(row, gaps) == std::set{0}; });
    };
    return static_cast<int>(groups.size()) >= parameters.fewestPartedRows && linesOf(groups.front()) > 1 &&
           std::all_of(groups.begin(), groups.end(), [&](const RowGroup& group) {
               return linesOf(group) == linesOf(groups.front()) && isLabelled(group);
           });
}

/// The rows between spaces of the larger kind; nothing where the spaces are of one kind.
std::optional<std::vector<RowGroup>> cutAtSpaces(std::span<const PieceRow> rows,
                                                 const TableParameters::Tables& parameters) {
    const std::optional<double> space = leastRowSpace(rows, parameters);
    if (!space)
        return std::nullopt;
    return groupsFrom(rows.size(), [&](std::size_t i) { return spaceAbove(rows, i) >= *space; });
}

} // namespace

std::optional<std::vector<RowGroup>> groupLabelsBySpace(std::span<const PieceRow> rows,
                                                        const std::vector<ColumnGap>& gaps,
                                                        const std::vector<Line>& lines,
                                                        const TableParameters::Tables& parameters) {
    std::optional<std::vector<RowGroup>> groups = cutAtSpaces(rows, parameters);
    const auto isLabelled = [&](const RowGroup& group) {
        std::vector<std::string> labels;
        for (std::size_t i = group.first; i < group.end; ++i)
            for (const TextPiece& piece : rows[i].pieces)
                if (columnsOf(piece, gaps).first == 0)
                    labels.push_back(textOf(piece, lines));
        const auto end =
            std::find_if(labels.begin(), labels.end(), [](const std::string& label) { return label.ends_with(':'); });
        return end != labels.end() && end + 1 == labels.end();
    };
    return groups && std::all_of(groups->begin(), groups->end(), isLabelled) ? groups : std::nullopt;
}

std::optional<std::vector<RowGroup>> groupBySpace(std::span<const PieceRow> rows, const std::vector<ColumnGap>& gaps,
                                                  const std::vector<Line>& lines,
                                                  const TableParameters::Tables& parameters) {
    std::optional<std::vector<RowGroup>> groups = cutAtSpaces(rows, parameters);
    if (!groups || (!areLabelsOfLines(rows, *groups, gaps, parameters) &&
                    !RunningRows(rows, gaps, lines, parameters).areTexts(*groups)))
        return std::nullopt;
    return groups;
}

} // namespace orvane::layout
