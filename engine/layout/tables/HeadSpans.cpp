#include "layout/tables/HeadSpans.h"

#include "layout/tables/ColumnText.h"
#include "layout/tables/HeadPlan.h"

#include <algorithm>
#include <optional>

namespace orvane::layout {
namespace {

/// One cell of a head, with what it may grow to.
struct Head {
    ColumnRange range;
    Rect box;
    std::vector<ColumnRange> choices;
};

class HeadSpanner {
public:
    HeadSpanner(TableGrid& grid, const AlignedRows& aligned, const std::vector<Line>& lines,
                const std::vector<BorderLine>& rules, const TableParameters::Tables& parameters)
        : m_grid(grid)
        , m_aligned(aligned)
        , m_lines(lines)
        , m_rules(rules)
        , m_parameters(parameters)
        , m_columns(aligned.gaps.size() + 1) {}

    void span() {
        const auto groups = static_cast<int>(m_aligned.groups.size());
        for (int row = 0; row + 1 < groups; ++row) {
            std::vector<Head> heads = headsOf(row);
            const bool isOfHead = row < m_parameters.maximumHeaderRows && !m_isBodyReached && !isBody(row);
            m_isBodyReached = !isOfHead || isClosedBelow(row, heads);
            const bool isAlone = heads.size() == 1 && heads.front().range.first > 0 && !hasNumbers(row);
            if (!isOfHead && !isAlone)
                continue;
            measureBelow(row);
            for (Head& head : heads)
                findChoices(row, heads, head);
            widen(row, heads);
        }
    }

private:
    template<typename Visit>
    void forPieces(int row, const Visit& visit) const {
        const RowGroup& group = m_aligned.groups[static_cast<std::size_t>(row)];
        for (std::size_t i = group.first; i < group.end; ++i)
            for (const TextPiece& piece : m_aligned.rows[i].pieces)
                visit(piece);
    }

    /// The cells of the row that hold text, left to right.
    std::vector<Head> headsOf(int row) const {
        std::vector<Head> heads;
        for (const GridCell& cell : m_grid.cells)
            if (cell.row == row)
                heads.push_back({{cell.column, cell.column + cell.columnSpan - 1}, {}, {}});
        forPieces(row, [&](const TextPiece& piece) {
            const int column = columnsOf(piece, m_aligned.gaps).first;
            for (Head& head : heads)
                if (head.range.first <= column && column <= head.range.last)
                    head.box = head.box.united(piece.box);
        });
        std::erase_if(heads, [](const Head& head) { return head.box.width() <= 0; });
        return heads;
    }

    bool hasNumbers(int row) const {
        bool has = false;
        forPieces(row, [&](const TextPiece& piece) { has = has || isNumeric(piece, m_lines); });
        return has;
    }

    /// Whether the row has a label and numbers; a head of years has none, or is the first.
    bool isBody(int row) const {
        bool isLabelled = false;
        forPieces(row, [&](const TextPiece& piece) {
            isLabelled = isLabelled || (columnsOf(piece, m_aligned.gaps).first == 0 && !isNumeric(piece, m_lines));
        });
        return row > 0 && isLabelled && hasNumbers(row);
    }

    /// Whether a rule as wide as the table closes the head below a row that has a text for each column but the first.
    bool isClosedBelow(int row, const std::vector<Head>& heads) const {
        int headed = 0;
        for (const Head& head : heads)
            headed += head.range.last - head.range.first + (head.range.first > 0);
        const double whole = m_grid.columnEdges.back() - m_grid.columnEdges.front();
        return headed == m_grid.columns() - 1 &&
               std::any_of(m_rules.begin(), m_rules.end(), [&](const BorderLine& rule) {
                   return rule.direction == RuleDirection::Horizontal && rule.position > boxOf(row).centerY() &&
                          rule.position < boxOf(row + 1).centerY() && rule.from < m_grid.columnEdges.back() &&
                          rule.to > m_grid.columnEdges.front() && rule.length() > m_parameters.headRuleShare * whole;
               });
    }

    /// Where the texts below the row stand.
    void measureBelow(int row) {
        m_columns.assign(m_columns.size(), {});
        m_isFilledBelow.assign(m_columns.size(), 0);
        for (int below = row + 1; below < static_cast<int>(m_aligned.groups.size()); ++below) {
            forPieces(below, [&](const TextPiece& piece) {
                const ColumnRange range = columnsOf(piece, m_aligned.gaps);
                for (int i = range.first; i <= range.last && below == row + 1; ++i)
                    m_isFilledBelow[static_cast<std::size_t>(i)] = 1;
                if (range.first != range.last)
                    return;
                ColumnText& column = m_columns[static_cast<std::size_t>(range.first)];
                column.boxes.push_back(piece.box);
                column.box = column.box.united(piece.box);
            });
        }
        for (ColumnText& column : m_columns)
            measure(column);
        // A head over several columns on the next row fills them, once it was given its place.
        for (const GridCell& cell : m_grid.cells)
            for (int i = cell.column; cell.row == row + 1 && i < cell.column + cell.columnSpan; ++i)
                if (cell.columnSpan > 1)
                    m_isFilledBelow[static_cast<std::size_t>(i)] = 1;
    }

    const ColumnText& at(int column) const { return m_columns[static_cast<std::size_t>(column)]; }

    void findChoices(int row, const std::vector<Head>& heads, Head& head) const {
        const auto isFree = [&](int column) {
            return m_isFilledBelow[static_cast<std::size_t>(column)] && !at(column).boxes.empty() &&
                   std::none_of(heads.begin(), heads.end(), [&](const Head& other) {
                       return other.range.first <= column && column <= other.range.last;
                   });
        };
        int first = head.range.first;
        int last = head.range.last;
        while (first > 1 && isFree(first - 1))
            --first;
        while (last + 1 < static_cast<int>(m_columns.size()) && isFree(last + 1))
            ++last;
        if (const auto ruled = ruledRange(row, heads, head, first, last)) {
            head.choices = {*ruled};
            return;
        }
        head.choices.push_back(head.range);
        for (int from = first; from <= head.range.first; ++from)
            for (int to = head.range.last; to <= last; ++to)
                if (to - from > head.range.last - head.range.first &&
                    isInTheMiddle(head.box, m_columns, {from, to}, m_parameters))
                    head.choices.push_back({from, to});
    }

    /// The columns that a rule right below the head spans, when it does not span the table.
    std::optional<ColumnRange> ruledRange(int row, const std::vector<Head>& heads, const Head& head, int first,
                                          int last) const {
        const Rect below = boxOf(row + 1);
        const double whole = m_grid.columnEdges.back() - m_grid.columnEdges.front();
        for (const BorderLine& rule : m_rules) {
            const bool isOverOthers = std::any_of(heads.begin(), heads.end(), [&](const Head& other) {
                return other.range.first != head.range.first && rule.from < other.box.centerX() &&
                       rule.to > other.box.centerX();
            });
            if (isOverOthers || rule.direction != RuleDirection::Horizontal ||
                rule.length() > m_parameters.headRuleShare * whole || rule.position < head.box.centerY() ||
                rule.position > below.centerY() || rule.from > head.box.centerX() || rule.to < head.box.centerX())
                continue;
            ColumnRange range = head.range;
            const auto isOver = [&](int column) {
                const double middle = at(column).box.centerX();
                return middle > rule.from && middle < rule.to;
            };
            while (range.first > first && isOver(range.first - 1))
                --range.first;
            while (range.last < last && isOver(range.last + 1))
                ++range.last;
            return range;
        }
        return std::nullopt;
    }

    Rect boxOf(int row) const {
        Rect box;
        forPieces(row, [&](const TextPiece& piece) { box = box.united(piece.box); });
        return box;
    }

    /// Gives the heads of a row those of their choices that do not overlap and leave fewest places empty.
    void widen(int row, const std::vector<Head>& heads) {
        std::vector<std::vector<ColumnRange>> choices;
        for (const Head& head : heads)
            choices.push_back(head.choices);
        for (const ColumnRange& range : widestRanges(choices))
            cover(row, range);
    }

    void cover(int row, const ColumnRange& range) {
        std::erase_if(m_grid.cells, [&](const GridCell& cell) {
            return cell.row == row && cell.column > range.first && cell.column <= range.last;
        });
        for (GridCell& cell : m_grid.cells)
            if (cell.row == row && cell.column == range.first)
                cell.columnSpan = range.last - range.first + 1;
    }

    TableGrid& m_grid;
    const AlignedRows& m_aligned;
    const std::vector<Line>& m_lines;
    const std::vector<BorderLine>& m_rules;
    const TableParameters::Tables& m_parameters;
    std::vector<ColumnText> m_columns;
    std::vector<char> m_isFilledBelow; ///< by column: the next row has a text there
    bool m_isBodyReached = false;
};

} // namespace

TableGrid spanHeads(TableGrid grid, const AlignedRows& aligned, const std::vector<Line>& lines,
                    const std::vector<BorderLine>& rules, const TableParameters::Tables& parameters) {
    TableGrid spanned = grid;
    HeadSpanner(spanned, aligned, lines, rules, parameters).span();
    return tilesGrid(spanned) ? spanned : grid;
}

} // namespace orvane::layout
