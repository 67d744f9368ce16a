#include "layout/tables/ColumnGaps.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>

namespace orvane::layout {
namespace {

/// Rows are looked at many times over, and never changed.
using Rows = std::vector<const PieceRow*>;

Rows rowsOf(std::span<const PieceRow> rows) {
    Rows pointers;
    pointers.reserve(rows.size());
    for (const PieceRow& row : rows)
        pointers.push_back(&row);
    return pointers;
}

/// How many pieces stand over a stretch of x.
struct Stretch {
    double left = 0;
    double right = 0;
    int cover = 0;
};

/// Where a piece begins (1) and ends (-1).
using CoverEvents = std::vector<std::pair<double, int>>;

void addCover(double left, double right, CoverEvents& events) {
    events.emplace_back(left, 1);
    events.emplace_back(right, -1);
}

std::vector<Stretch> coverProfile(CoverEvents events) {
    std::sort(events.begin(), events.end());
    std::vector<Stretch> profile;
    int cover = 0;
    for (std::size_t i = 0; i + 1 < events.size(); ++i) {
        cover += events[i].second;
        if (events[i + 1].first > events[i].first)
            profile.push_back({events[i].first, events[i + 1].first, cover});
    }
    return profile;
}

/// The stretches that at most `allowed` pieces cover, neighbours joined.
std::vector<ColumnGap> thinStretches(const std::vector<Stretch>& profile, int allowed) {
    std::vector<ColumnGap> thin;
    bool isOpen = false;
    for (const Stretch& stretch : profile) {
        if (stretch.cover > allowed) {
            isOpen = false;
            continue;
        }
        if (isOpen)
            thin.back().right = stretch.right;
        else
            thin.push_back({stretch.left, stretch.right});
        isOpen = true;
    }
    return thin;
}

/// Pieces one below the other, seen as one.
struct PieceStack {
    double left = 0;
    double right = 0;
    int pieces = 0;
};

std::vector<PieceStack> stacksWithin(const ColumnGap& thin, const Rows& rows) {
    std::vector<PieceStack> inner;
    for (const PieceRow* row : rows)
        for (const TextPiece& piece : row->pieces)
            if (piece.box.left > thin.left && piece.box.right < thin.right)
                inner.push_back({piece.box.left, piece.box.right, 1});
    std::sort(inner.begin(), inner.end(), [](const PieceStack& a, const PieceStack& b) { return a.left < b.left; });
    std::vector<PieceStack> stacks;
    for (const PieceStack& piece : inner) {
        if (stacks.empty() || piece.left >= stacks.back().right) {
            stacks.push_back(piece);
        } else {
            stacks.back().right = std::max(stacks.back().right, piece.right);
            ++stacks.back().pieces;
        }
    }
    return stacks;
}

/// The parts of a thin stretch that are left when a column with few entries inside it is taken out. One piece alone is
/// no column: a heading over the columns at both sides.
std::vector<ColumnGap> withoutThinColumns(const ColumnGap& thin, const Rows& rows) {
    std::vector<ColumnGap> parts;
    double from = thin.left;
    for (const PieceStack& stack : stacksWithin(thin, rows)) {
        if (stack.pieces < 2)
            continue;
        parts.push_back({from, stack.left});
        from = stack.right;
    }
    parts.push_back({from, thin.right});
    return parts;
}

/// In how many rows text stands on both sides of the gap without reaching over it.
int countRowsParted(const ColumnGap& gap, const Rows& rows) {
    return static_cast<int>(std::count_if(rows.begin(), rows.end(), [&](const PieceRow* row) {
        const std::vector<TextPiece>& pieces = row->pieces;
        const bool isCrossed =
            std::any_of(pieces.begin(), pieces.end(), [&](const TextPiece& piece) { return crosses(piece, gap); });
        return !isCrossed && pieces.front().box.left < gap.middle() && pieces.back().box.right > gap.middle();
    }));
}

/// The part of the gap that fewest pieces cover: a long text that reaches into the gap does not narrow the other rows.
/// Headings that stand within the gap do not count.
ColumnGap clearestPart(const ColumnGap& gap, const Rows& rows) {
    CoverEvents reaching;
    addCover(gap.left, gap.right, reaching); // so that all of it has a cover
    for (const PieceRow* row : rows)
        for (const TextPiece& piece : row->pieces)
            if (piece.box.right > gap.left && piece.box.left < gap.right &&
                (piece.box.left <= gap.left || piece.box.right >= gap.right))
                addCover(piece.box.left, piece.box.right, reaching);
    const std::vector<Stretch> profile = coverProfile(std::move(reaching));
    int least = 1 << 30;
    for (const Stretch& stretch : profile)
        if (stretch.left >= gap.left && stretch.right <= gap.right)
            least = std::min(least, stretch.cover);
    ColumnGap clearest{gap.left, gap.left};
    for (const ColumnGap& part : thinStretches(profile, least)) {
        const ColumnGap within{std::max(part.left, gap.left), std::min(part.right, gap.right)};
        if (within.width() > clearest.width())
            clearest = within;
    }
    return clearest;
}

/// The rows without those that hold one text which begins within the table: a heading over several columns. A text that
/// begins at the side may be a label, or no part of the table.
Rows withoutHeadings(const Rows& rows) {
    double left = std::numeric_limits<double>::infinity();
    for (const PieceRow* row : rows)
        left = std::min(left, row->box.left);
    Rows others;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(others),
                 [&](const PieceRow* row) { return row->pieces.size() > 1 || row->box.left <= left + row->fontSize; });
    return others;
}

/// Finds the part of a thin stretch that parts two columns.
class GapFinder {
public:
    GapFinder(const Rows& rows, double leastWidth, const TableParameters::Tables& parameters)
        : m_rows(rows)
        , m_leastWidth(leastWidth)
        , m_parameters(parameters) {}

    /// Nothing where it is not wide enough. Headings make no gap narrow.
    std::optional<ColumnGap> gapWithin(const ColumnGap& thin) {
        const ColumnGap gap = clearestPart(thin, m_rows);
        if (gap.width() >= m_leastWidth || isNarrowedByHead(thin))
            return gap;
        if (!m_others)
            m_others = withoutHeadings(m_rows);
        const ColumnGap ofOthers = clearestPart(thin, *m_others);
        return ofOthers.width() >= m_leastWidth ? std::optional(ofOthers) : std::nullopt;
    }

private:
    /// Whether only the head makes the gap narrow: its texts are longer than what stands below them, and reach into it.
    bool isNarrowedByHead(const ColumnGap& gap) {
        for (int headRows = 1; headRows <= m_parameters.maximumHeaderRows; ++headRows) {
            if (static_cast<int>(m_rows.size()) - headRows < m_parameters.fewestPartedRows)
                return false;
            const Rows body = below(headRows);
            if (clearestPart(gap, body).width() >= 2 * m_leastWidth)
                return countRowsParted(gap, body) >= m_parameters.fewestPartedRows;
        }
        return false;
    }

    /// The rows without the first ones.
    Rows below(int headRows) {
        if (m_sorted.empty()) {
            m_sorted = m_rows;
            std::sort(m_sorted.begin(), m_sorted.end(),
                      [](const PieceRow* a, const PieceRow* b) { return a->baseline < b->baseline; });
        }
        return {m_sorted.begin() + headRows, m_sorted.end()};
    }

    const Rows& m_rows;
    double m_leastWidth;
    const TableParameters::Tables& m_parameters;
    Rows m_sorted;                ///< from top to bottom, once they are needed
    std::optional<Rows> m_others; ///< without headings, once they are needed
};

std::vector<ColumnGap> gapsAmong(const Rows& rows, const TableParameters::Tables& parameters) {
    const auto rowCount = static_cast<double>(rows.size());
    const int allowed = static_cast<int>(parameters.crossedRowShare * rowCount);
    double fontSize = 0;
    CoverEvents covers;
    for (const PieceRow* row : rows) {
        fontSize += row->fontSize / rowCount;
        for (const TextPiece& piece : row->pieces)
            addCover(piece.box.left, piece.box.right, covers);
    }
    GapFinder finder(rows, parameters.minimumColumnGap * fontSize, parameters);
    std::vector<ColumnGap> gaps;
    for (const ColumnGap& thin : thinStretches(coverProfile(std::move(covers)), allowed)) {
        for (const ColumnGap& part : withoutThinColumns(thin, rows)) {
            const auto gap = finder.gapWithin(part);
            if (gap && countRowsParted(*gap, rows) >= parameters.minimumRowsParted)
                gaps.push_back(*gap);
        }
    }
    return gaps;
}

/// The rows in which one column has texts of its own.
struct FilledRows {
    double top = std::numeric_limits<double>::infinity();
    double bottom = -std::numeric_limits<double>::infinity();
    int count = 0;

    void add(const PieceRow& row) {
        top = std::min(top, row.box.top);
        bottom = std::max(bottom, row.box.bottom);
        ++count;
    }
    bool isHeadOf(const FilledRows& values, const TableParameters::Tables& parameters) const {
        return count > 0 && count <= parameters.maximumHeaderRows && values.count >= parameters.minimumRowsParted &&
               bottom <= values.top;
    }
};

/// The rows with texts in one column only, for each column between the gaps.
std::vector<FilledRows> filledRows(const std::vector<ColumnGap>& gaps, const Rows& rows) {
    std::vector<FilledRows> filled(gaps.size() + 1);
    for (const PieceRow* row : rows)
        for (const TextPiece& piece : row->pieces)
            if (const ColumnRange range = columnsOf(piece, gaps); range.first == range.last)
                filled[static_cast<std::size_t>(range.first)].add(*row);
    return filled;
}

void joinHeads(std::vector<ColumnGap>& gaps, const Rows& rows, const TableParameters::Tables& parameters) {
    std::vector<FilledRows> filled = filledRows(gaps, rows);
    for (std::size_t i = gaps.size(); i-- > 0;) {
        const FilledRows &left = filled[i], &right = filled[i + 1];
        if (!left.isHeadOf(right, parameters) && !right.isHeadOf(left, parameters))
            continue;
        gaps.erase(gaps.begin() + static_cast<std::ptrdiff_t>(i));
        filled = filledRows(gaps, rows);
    }
}

} // namespace

void joinHeadsWithValues(std::vector<ColumnGap>& gaps, std::span<const PieceRow> rows,
                         const TableParameters::Tables& parameters) {
    joinHeads(gaps, rowsOf(rows), parameters);
}

std::vector<ColumnGap> findColumnGaps(std::span<const PieceRow> rows, const TableParameters::Tables& parameters) {
    // Rows with texts side by side tell of columns, and single texts that keep within one column of these.
    Rows telling, single;
    for (const PieceRow& row : rows)
        (row.pieces.size() > 1 ? telling : single).push_back(&row);
    std::vector<ColumnGap> gaps = gapsAmong(telling, parameters);
    std::erase_if(single, [&](const PieceRow* row) {
        const ColumnRange range = columnsOf(row->pieces.front(), gaps);
        return row->pieces.size() != 1 || range.first != range.last;
    });
    if (!single.empty()) {
        telling.insert(telling.end(), single.begin(), single.end());
        gaps = gapsAmong(telling, parameters);
    }
    joinHeads(gaps, telling, parameters);
    return gaps;
}

ColumnRange columnsOf(const TextPiece& piece, const std::vector<ColumnGap>& gaps) {
    ColumnRange range;
    for (const ColumnGap& gap : gaps) {
        range.first += piece.box.left >= gap.left - 0.01;
        range.last += piece.box.right > gap.right + 0.01;
    }
    // Within one gap: the first column counted the gap, the last one did not.
    if (range.last < range.first)
        std::swap(range.first, range.last);
    return range;
}

} // namespace orvane::layout
