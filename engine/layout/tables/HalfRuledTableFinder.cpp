#include "layout/tables/HalfRuledTableFinder.h"

#include "layout/tables/AlignedAdmission.h"
#include "layout/tables/BandRun.h"
#include "layout/tables/ColumnPieces.h"
#include "layout/tables/HeadSpans.h"
#include "layout/tables/OpenBands.h"
#include "layout/tables/RuleLabels.h"
#include "layout/tables/RuledAdmission.h"

#include <algorithm>
#include <optional>
#include <set>

namespace orvane::layout {
namespace {

Rect boxOf(const AlignedRows& aligned) {
    Rect box;
    for (const PieceRow& row : aligned.rows)
        box = box.united(row.box);
    return box;
}

/// The texts that stand in the first column only, from top to bottom.
ColumnPieces firstColumnOf(const AlignedRows& aligned) {
    ColumnPieces column;
    for (const PieceRow& row : aligned.rows) {
        const ColumnRange range = columnsOf(row.pieces.front(), aligned.gaps);
        if (range.first == 0 && range.last == 0)
            column.add(row.pieces.front());
    }
    return column;
}

/// Whether the first column holds a head in words and numbers that end at one edge: the column is wider than they are.
bool endsWithNumbers(const ColumnPieces& column, const std::vector<Line>& lines,
                     const TableParameters::Tables& parameters) {
    return isOfNumbers(column, lines, parameters) && !isNumeric(*column.pieces.front(), lines) &&
           column.share([&](const TextPiece* piece) {
               return piece->box.right >= column.right - parameters.columnEdge * lines[piece->line].fontSize;
           }) == 1;
}

/// Whether the run begins with rows that stand each in a band of its own above the first rule.
bool beginsAboveTotals(const std::vector<RuleBand>& bands, const BandRun& run) {
    const RuleBand& first = bands[run.first];
    return !first.hasRuleAbove && !first.hasRuleBelow && first.level == 0 && run.end > run.first + 1;
}

/// Whether two rules stand around the totals of a table that shows its rows by their places only: what is right above
/// the first rule is no head, but a label and amounts as between the rules.
bool isTailOfTable(const RuleStack& stack, const std::vector<RuleBand>& bands, const BandRun& run,
                   const std::vector<Line>& lines) {
    const RuleBand& above = bands[run.first];
    const auto hasAmount = [&](const PieceRow& row) { return isLabelWithAmount(row, lines); };
    return stack.size() == 2 && !above.hasRuleAbove && !above.rows.empty() && run.end > run.first + 1 &&
           std::all_of(above.rows.begin(), above.rows.end(), hasAmount) &&
           std::all_of(bands[run.first + 1].rows.begin(), bands[run.first + 1].rows.end(), hasAmount);
}

/// One past the last band of the run that is no total.
std::size_t endWithoutTotals(const std::vector<RuleBand>& bands, const BandRun& run) {
    std::size_t end = run.end;
    while (end > run.first && bands[end - 1].isTotal)
        --end;
    return end;
}

/// Whether a rule lies right below the head, or rules close the run above and below.
enum class Frame { Closed, Headed, None };

Frame frameOf(const RuleStack& stack, const std::vector<RuleBand>& bands, const BandRun& run) {
    const std::size_t end = endWithoutTotals(bands, run);
    if (end > run.first && bands[run.first].hasRuleAbove && bands[end - 1].hasRuleBelow)
        return Frame::Closed;
    if (beginsAboveTotals(bands, run))
        return Frame::Headed;
    const bool startsStack = run.first == 0 && (!bands.front().hasRuleAbove || stack.size() > 1);
    return startsStack && bands.front().hasRuleBelow ? Frame::Headed : Frame::None;
}

/// Whether the texts take up most of the rules' length: those of a page's head and foot are longer than the table
/// between them. Below a head and its rule the room of a first column of numbers counts, too.
bool fillsRules(const RuleStack& stack, const std::vector<RuleBand>& bands, const BandRun& run,
                const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    const RuleBand& head = bands[run.first];
    const RuleLevel& level = stack[head.level];
    Rect box = boxOf(run.aligned);
    const bool isHeaded = head.hasRuleBelow && frameOf(stack, bands, run) == Frame::Headed;
    if (isHeaded && endsWithNumbers(firstColumnOf(run.aligned), lines, parameters))
        box.left = std::min(box.left, level.left);
    return box.width() >= parameters.ruleFill * (level.right - level.left);
}

/// Whether the first band has a text in each column but the first, which may need no head.
bool isHeaded(const std::vector<RuleBand>& bands, const BandRun& run, const TableParameters::Tables& parameters) {
    std::set<int> headed;
    const std::size_t rows =
        beginsAboveTotals(bands, run)
            ? std::min(run.aligned.rows.size(), static_cast<std::size_t>(parameters.maximumHeaderRows))
            : bands[run.first].rows.size();
    for (std::size_t i = 0; i < rows; ++i) {
        for (const TextPiece& piece : run.aligned.rows[i].pieces) {
            const ColumnRange range = columnsOf(piece, run.aligned.gaps);
            for (int column = range.first; column <= range.last; ++column)
                headed.insert(column);
        }
    }
    headed.insert(0);
    return headed.size() == run.aligned.gaps.size() + 1;
}

/// Whether rules that begin with the text stand above and below a head over every column, and below the body: those of
/// a page's head and foot do not, so that the rules may be longer than the table.
bool hasHeadBetweenRules(const RuleStack& stack, const std::vector<RuleBand>& bands, const BandRun& run,
                         const TableParameters::Tables& parameters) {
    const double indent = boxOf(run.aligned).left - stack[bands[run.first].level].left;
    return run.end > run.first + 1 && bands[run.first].hasRuleBelow && frameOf(stack, bands, run) == Frame::Closed &&
           indent <= run.aligned.rows.front().fontSize && isHeaded(bands, run, parameters);
}

/// The edges that rules draw lie on them, the outer ones too.
void snapToRules(TableGrid& grid, const RuleStack& stack, const std::vector<RuleBand>& bands, const BandRun& run) {
    std::size_t group = 0;
    std::size_t start = 0;
    for (std::size_t i = run.first; i < run.end; ++i) {
        while (group < run.aligned.groups.size() && run.aligned.groups[group].first < start)
            ++group;
        const bool startsGroup = group < run.aligned.groups.size() && run.aligned.groups[group].first == start;
        if (!bands[i].rows.empty() && bands[i].hasRuleAbove && startsGroup)
            grid.rowEdges[group] = bands[i].top;
        start += bands[i].rows.size();
    }
    if (bands[run.end - 1].hasRuleBelow)
        grid.rowEdges.back() = bands[run.end - 1].bottom;
    const Rect text = boxOf(run.aligned);
    const RuleLevel& level = stack[bands[run.first].level];
    grid.columnEdges.front() = std::min(text.left, level.left);
    grid.columnEdges.back() = std::max(text.right, level.right);
}

/// The grid of a run, cut to what belongs to it; nothing when it is no table.
std::optional<TableGrid> gridOfRun(const PageText& page, const std::vector<BorderLine>& rules, const RuleStack& stack,
                                   const std::vector<RuleBand>& bands, const LayoutParameters& parameters,
                                   BandRun& run) {
    const TableParameters::Tables& limits = parameters.tables;
    if (run.end == run.first || isTailOfTable(stack, bands, run, page.lines) ||
        frameOf(stack, bands, run) == Frame::None)
        return std::nullopt;
    alignRun(bands, page.lines, rules, parameters, run);
    if (run.aligned.groups.empty())
        return std::nullopt;
    if (!fillsRules(stack, bands, run, page.lines, limits) && !hasHeadBetweenRules(stack, bands, run, limits))
        return std::nullopt;
    if (frameOf(stack, bands, run) == Frame::Headed && !isHeaded(bands, run, limits))
        return std::nullopt;
    const AlignedEvidence evidence = run.end == run.first + 1 ? AlignedEvidence::Frame : AlignedEvidence::Rules;
    if (judgeAlignedTable(page, run.aligned, evidence, limits) != TableVerdict::Table)
        return std::nullopt;
    TableGrid grid = spanHeads(gridOf(run.aligned, limits.textMargin), run.aligned, page.lines, rules, limits);
    snapToRules(grid, stack, bands, run);
    return isDrawnOver(page, grid, limits) ? std::nullopt : std::optional(std::move(grid));
}

/// The stacks with most levels first: the more rules agree, the surer they are those of a table.
std::vector<RuleStack> sortedStacks(const std::vector<BorderLine>& rules, const std::vector<TextPiece>& pieces,
                                    const std::vector<Line>& lines, const TableParameters::Tables& parameters) {
    std::vector<RuleStack> stacks = withLabels(findRuleStacks(rules, parameters), pieces, lines, parameters);
    std::stable_sort(stacks.begin(), stacks.end(),
                     [](const RuleStack& a, const RuleStack& b) { return a.size() > b.size(); });
    return stacks;
}

} // namespace

std::vector<TableGrid> findHalfRuledGrids(const PageText& page, const std::vector<BorderLine>& rules,
                                          const LayoutParameters& parameters) {
    const TableParameters::Tables& limits = parameters.tables;
    std::vector<TextPiece> pieces = cutIntoPieces(page, limits);
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const TextPiece& a, const TextPiece& b) { return a.baseline < b.baseline; });
    std::vector<TableGrid> grids;
    for (const RuleStack& stack : sortedStacks(rules, pieces, page.lines, limits)) {
        const std::vector<RuleBand> bands = bandsOf(stack, pieces, page.lines, limits);
        for (std::size_t first = 0; first < bands.size();) {
            BandRun run{first, first, {}};
            if (!bands[first].rows.empty() && !isHeadingOnly(bands[first]))
                run = growRun(bands, first, limits);
            BandRun body{run.first, endWithoutTotals(bands, run), {}};
            std::optional<TableGrid> grid = gridOfRun(page, rules, stack, bands, parameters, run);
            if (!grid && body.end != run.end) {
                // What stands below the last rule only looked like totals.
                run = std::move(body);
                grid = gridOfRun(page, rules, stack, bands, parameters, run);
            }
            first = grid ? run.end : first + 1;
            if (grid && !overlapsAny(*grid, grids))
                grids.push_back(std::move(*grid));
        }
    }
    return grids;
}

} // namespace orvane::layout
