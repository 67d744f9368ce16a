#include "layout/tables/RuleBands.h"

#include "layout/tables/ColumnGaps.h"
#include "layout/tables/OpenBands.h"
#include "layout/tables/TableCaption.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orvane::layout {
namespace {

constexpr std::ptrdiff_t kFewestSpacedRows = 3;

/// Whether the table goes on below the last level of a stack.
enum class StackEnd { Open, Closed };

/// Whether the row holds a line of running text: over the columns of the others, and over most of the rules' length.
bool isRunningLine(const PieceRow& row, const RuleLevel& level, const std::vector<ColumnGap>& gaps,
                   const TableParameters::Tables& parameters) {
    if (row.pieces.size() != 1 || row.box.width() < parameters.openProseShare * (level.right - level.left))
        return false;
    const ColumnRange range = columnsOf(row.pieces.front(), gaps);
    return range.first == 0 && range.last > 0;
}

/// Where a table ends within a band: at a paragraph between two tables, or at the caption of the next one.
std::vector<PieceRow>::iterator endOfTable(std::vector<PieceRow>& rows, const RuleLevel& level,
                                           const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    const std::vector<ColumnGap> gaps = findColumnGaps(rows, parameters);
    const auto paragraph = std::adjacent_find(rows.begin(), rows.end(), [&](const PieceRow& row, const PieceRow& next) {
        return isRunningLine(row, level, gaps, parameters) && isRunningLine(next, level, gaps, parameters);
    });
    const auto caption =
        std::find_if(rows.begin(), rows.end(), [&](const PieceRow& row) { return isTableCaption(row, lines); });
    // Text that begins right below the rule may be of a cell.
    return std::min(paragraph == rows.begin() ? rows.end() : paragraph, caption);
}

/// Cuts a band where a table ends in it. What follows is the head of the next.
void appendParts(RuleBand band, const RuleLevel& level, const std::vector<Line>& lines,
                 const TableParameters::Tables& parameters, std::vector<RuleBand>& bands) {
    const auto first = endOfTable(band.rows, level, lines, parameters);
    if (first == band.rows.end()) {
        bands.push_back(std::move(band));
        return;
    }
    const auto end =
        std::find_if(first + 1, band.rows.end(), [](const PieceRow& row) { return row.pieces.size() > 1; });
    RuleBand rest{.top = first->box.top,
                  .bottom = band.bottom,
                  .rows = {end, band.rows.end()},
                  .hasRuleAbove = false,
                  .hasRuleBelow = band.hasRuleBelow,
                  .level = band.level};
    const bool isAtRule = first == band.rows.begin();
    band.rows.erase(first, band.rows.end());
    if (isAtRule && !bands.empty()) {
        bands.back().isFollowed = true;
    } else if (!isAtRule) {
        band.bottom = band.rows.back().box.bottom;
        band.hasRuleBelow = false;
        band.isFollowed = true;
        bands.push_back(std::move(band));
    }
    if (!rest.rows.empty())
        bands.push_back(std::move(rest));
}

std::vector<RuleBand> bandsBetween(const RuleStack& stack, const std::vector<TextPiece>& pieces,
                                   const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    std::vector<RuleBand> bands;
    for (std::size_t i = 0; i + 1 < stack.size(); ++i) {
        const Rect box{std::min(stack[i].left, stack[i + 1].left) - parameters.endSnap, stack[i].y,
                       std::max(stack[i].right, stack[i + 1].right) + parameters.endSnap, stack[i + 1].y};
        std::vector<TextPiece> within;
        for (const TextPiece& piece : pieces)
            if (box.contains(Point{piece.box.centerX(), piece.box.centerY()}))
                within.push_back(piece);
        appendParts(
            {.top = box.top, .bottom = box.bottom, .rows = groupIntoRows(std::move(within), parameters), .level = i},
            stack[i], lines, parameters, bands);
    }
    return bands;
}

/// A rule below the head, or one at each side of it, leaves the table open; more rules close it with their last.
StackEnd endOf(const RuleStack& stack, const std::vector<PieceRow>& head, const std::vector<RuleBand>& between,
               const TableParameters::Tables& parameters) {
    const bool isHeadBetween = stack.size() == 2 && !between.empty() &&
                               static_cast<int>(between.front().rows.size()) <= parameters.maximumHeaderRows;
    const bool hasHeadOnly = stack.size() == 1 ? !head.empty() : isHeadBetween;
    return hasHeadOnly ? StackEnd::Open : StackEnd::Closed;
}

/// The head above the first level; where rules stand at totals only, the rows above it, each a band of its own.
std::vector<RuleBand> bandsAbove(const RuleStack& stack, std::vector<PieceRow> head,
                                 const std::vector<TextPiece>& pieces, const std::vector<Line>& lines,
                                 const TableParameters::Tables& parameters) {
    std::vector<PieceRow> rows;
    if (static_cast<int>(stack.size()) >= parameters.fewestTotalRules)
        rows = rowsAbove(stack.front(), pieces, lines, parameters);
    std::vector<RuleBand> bands;
    if (rows.size() > head.size()) {
        for (PieceRow& row : rows) {
            const Rect box = row.box;
            bands.push_back({.top = box.top,
                             .bottom = box.bottom,
                             .rows = {std::move(row)},
                             .hasRuleAbove = false,
                             .hasRuleBelow = false});
        }
    } else if (!head.empty()) {
        const double top = head.front().box.top;
        bands.push_back({.top = top, .rows = std::move(head), .hasRuleAbove = false});
    }
    if (!bands.empty()) {
        bands.back().bottom = stack.front().y;
        bands.back().hasRuleBelow = true;
    }
    return bands;
}

/// The rows below the last level, each a band of its own: of a closed stack only totals.
std::vector<RuleBand> bandsBelow(const RuleStack& stack, StackEnd stackEnd, const std::vector<TextPiece>& pieces,
                                 const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    const RuleLevel& last = stack.back();
    std::vector<PieceRow> rows =
        stackEnd == StackEnd::Open ? rowsBelow(last, pieces, parameters) : totalsBelow(last, pieces, lines, parameters);
    std::vector<RuleBand> bands;
    double top = last.y;
    for (PieceRow& row : rows) {
        const double bottom = row.box.bottom;
        bands.push_back({.top = top,
                         .bottom = bottom,
                         .rows = {std::move(row)},
                         .hasRuleAbove = top == last.y,
                         .hasRuleBelow = false,
                         .level = stack.size() - 1,
                         .isTotal = stackEnd == StackEnd::Closed});
        top = bottom;
    }
    return bands;
}

/// The room between the first rows below a lone rule, all of texts side by side, in points; 0 where these are too few.
double rowSpaceBelow(const RuleStack& stack, const std::vector<TextPiece>& pieces,
                     const TableParameters::Tables& parameters) {
    if (stack.size() > 1)
        return 0;
    const std::vector<PieceRow> rows = rowsBelow(stack.front(), pieces, parameters);
    const auto end = rows.begin() + std::min<std::ptrdiff_t>(std::ssize(rows), kFewestSpacedRows);
    const bool areRows = std::all_of(rows.begin(), end, [](const PieceRow& row) { return row.pieces.size() > 1; });
    return end - rows.begin() == kFewestSpacedRows && areRows ? rows[1].box.top - rows[0].box.bottom : 0;
}

} // namespace

std::vector<RuleBand> bandsOf(const RuleStack& stack, const std::vector<TextPiece>& pieces,
                              const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    std::vector<PieceRow> head = headAbove(stack.front(), rowSpaceBelow(stack, pieces, parameters), pieces, parameters);
    std::vector<RuleBand> between = bandsBetween(stack, pieces, lines, parameters);
    std::vector<RuleBand> below = bandsBelow(stack, endOf(stack, head, between, parameters), pieces, lines, parameters);
    std::vector<RuleBand> bands = bandsAbove(stack, std::move(head), pieces, lines, parameters);
    std::move(between.begin(), between.end(), std::back_inserter(bands));
    std::move(below.begin(), below.end(), std::back_inserter(bands));
    return bands;
}

} // namespace orvane::layout
