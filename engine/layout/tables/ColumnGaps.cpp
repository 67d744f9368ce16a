#include "layout/tables/ColumnGaps.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>

namespace orvane::layout {
namespace {

/// How many pieces stand over a stretch of x.
struct Stretch {
    double left = 0;
    double right = 0;
    int cover = 0;
};

std::vector<Stretch> coverProfile(std::span<const PieceRow> rows) {
    std::vector<std::pair<double, int>> events;
    for (const PieceRow& row : rows) {
        for (const TextPiece& piece : row.pieces) {
            events.emplace_back(piece.box.left, 1);
            events.emplace_back(piece.box.right, -1);
        }
    }
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

std::vector<PieceStack> stacksWithin(const ColumnGap& thin, std::span<const PieceRow> rows) {
    std::vector<PieceStack> inner;
    for (const PieceRow& row : rows)
        for (const TextPiece& piece : row.pieces)
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
std::vector<ColumnGap> withoutThinColumns(const ColumnGap& thin, std::span<const PieceRow> rows) {
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
int countRowsParted(const ColumnGap& gap, std::span<const PieceRow> rows) {
    return static_cast<int>(std::count_if(rows.begin(), rows.end(), [&](const PieceRow& row) {
        const bool isCrossed = std::any_of(row.pieces.begin(), row.pieces.end(),
                                           [&](const TextPiece& piece) { return crosses(piece, gap); });
        return !isCrossed && row.pieces.front().box.left < gap.middle() && row.pieces.back().box.right > gap.middle();
    }));
}

/// The part of the gap that fewest pieces cover: a long text that reaches into the gap does not narrow the other rows.
/// Headings that stand within the gap do not count.
ColumnGap clearestPart(const ColumnGap& gap, std::span<const PieceRow> rows) {
    std::vector<PieceRow> reaching(1);
    // The gap itself as a piece, so that all of it has a cover.
    reaching.front().pieces.push_back({0, 0, 0, {gap.left, 0, gap.right, 0}, 0, 0});
    for (const PieceRow& row : rows)
        for (const TextPiece& piece : row.pieces)
            if (piece.box.right > gap.left && piece.box.left < gap.right &&
                (piece.box.left <= gap.left || piece.box.right >= gap.right))
                reaching.front().pieces.push_back(piece);
    const std::vector<Stretch> profile = coverProfile(reaching);
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

/// Whether only the head makes the gap narrow: its texts are longer than what stands below them, and reach into it.
bool isNarrowedByHead(const ColumnGap& gap, std::span<const PieceRow> rows, double width,
                      const TableParameters::Tables& parameters) {
    std::vector<PieceRow> body(rows.begin(), rows.end());
    std::sort(body.begin(), body.end(), [](const PieceRow& a, const PieceRow& b) { return a.baseline < b.baseline; });
    for (int i = 0; i < parameters.maximumHeaderRows; ++i) {
        body.erase(body.begin());
        if (static_cast<int>(body.size()) < parameters.fewestPartedRows)
            return false;
        if (clearestPart(gap, body).width() >= width)
            return countRowsParted(gap, body) >= parameters.fewestPartedRows;
    }
    return false;
}

/// The rows without those that hold one text which begins within the table: a heading over several columns. A text that
/// begins at the side may be a label, or no part of the table.
std::vector<PieceRow> withoutHeadings(std::span<const PieceRow> rows) {
    double left = std::numeric_limits<double>::infinity();
    for (const PieceRow& row : rows)
        left = std::min(left, row.box.left);
    std::vector<PieceRow> others;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(others),
                 [&](const PieceRow& row) { return row.pieces.size() > 1 || row.box.left <= left + row.fontSize; });
    return others;
}

/// The part of a thin stretch that parts two columns, when it is wide enough. Headings make no gap narrow.
std::optional<ColumnGap> gapWithin(const ColumnGap& thin, std::span<const PieceRow> rows, double least,
                                   const TableParameters::Tables& parameters) {
    const ColumnGap gap = clearestPart(thin, rows);
    if (gap.width() >= least || isNarrowedByHead(thin, rows, 2 * least, parameters))
        return gap;
    const ColumnGap ofOthers = clearestPart(thin, withoutHeadings(rows));
    return ofOthers.width() >= least ? std::optional(ofOthers) : std::nullopt;
}

std::vector<ColumnGap> gapsAmong(std::span<const PieceRow> rows, const TableParameters::Tables& parameters) {
    const auto rowCount = static_cast<double>(rows.size());
    const int allowed = static_cast<int>(parameters.crossedRowShare * rowCount);
    double fontSize = 0;
    for (const PieceRow& row : rows)
        fontSize += row.fontSize / rowCount;
    std::vector<ColumnGap> gaps;
    for (const ColumnGap& thin : thinStretches(coverProfile(rows), allowed)) {
        for (const ColumnGap& part : withoutThinColumns(thin, rows)) {
            const auto gap = gapWithin(part, rows, parameters.minimumColumnGap * fontSize, parameters);
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

/// The rows that tell of columns: those with text side by side, and single texts that keep within one column of these.
std::vector<PieceRow> tellingRows(std::span<const PieceRow> rows, const TableParameters::Tables& parameters) {
    std::vector<PieceRow> telling;
    for (const PieceRow& row : rows)
        if (row.pieces.size() > 1)
            telling.push_back(row);
    const std::vector<ColumnGap> gaps = gapsAmong(telling, parameters);
    for (const PieceRow& row : rows) {
        const ColumnRange range = columnsOf(row.pieces.front(), gaps);
        if (row.pieces.size() == 1 && range.first == range.last)
            telling.push_back(row);
    }
    return telling;
}

} // namespace

void joinHeadsWithValues(std::vector<ColumnGap>& gaps, std::span<const PieceRow> rows,
                         const TableParameters::Tables& parameters) {
    for (std::size_t i = gaps.size(); i-- > 0;) {
        FilledRows left, right;
        for (const PieceRow& row : rows) {
            for (const TextPiece& piece : row.pieces) {
                const ColumnRange range = columnsOf(piece, gaps);
                if (range.first == range.last && range.first == static_cast<int>(i))
                    left.add(row);
                else if (range.first == range.last && range.first == static_cast<int>(i) + 1)
                    right.add(row);
            }
        }
        if (left.isHeadOf(right, parameters) || right.isHeadOf(left, parameters))
            gaps.erase(gaps.begin() + static_cast<std::ptrdiff_t>(i));
    }
}

std::vector<ColumnGap> findColumnGaps(std::span<const PieceRow> rows, const TableParameters::Tables& parameters) {
    const std::vector<PieceRow> telling = tellingRows(rows, parameters);
    std::vector<ColumnGap> gaps = gapsAmong(telling, parameters);
    joinHeadsWithValues(gaps, telling, parameters);
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
