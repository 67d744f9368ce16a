#include "layout/tables/HalfRuledTableFinder.h"

#include "layout/tables/AlignedAdmission.h"
#include "layout/tables/RuleStack.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// The rows of text between two levels of a stack.
struct Band {
    double top = 0;
    double bottom = 0;
    std::vector<PieceRow> rows;
};

std::vector<Band> bandsOf(const RuleStack& stack, const std::vector<TextPiece>& pieces,
                          const TableParameters::Tables& parameters) {
    std::vector<Band> bands;
    for (std::size_t i = 0; i + 1 < stack.size(); ++i) {
        const Rect box{std::min(stack[i].left, stack[i + 1].left) - parameters.endSnap, stack[i].y,
                       std::max(stack[i].right, stack[i + 1].right) + parameters.endSnap, stack[i + 1].y};
        std::vector<TextPiece> within;
        for (const TextPiece& piece : pieces)
            if (box.contains(Point{piece.box.centerX(), piece.box.centerY()}))
                within.push_back(piece);
        bands.push_back({box.top, box.bottom, groupIntoRows(std::move(within), parameters)});
    }
    return bands;
}

bool isHeadingOnly(const Band& band) {
    return std::all_of(band.rows.begin(), band.rows.end(), [](const PieceRow& row) { return row.pieces.size() < 2; });
}

/// Bands [first, end) of a stack that are one table, with what their rows have in common.
struct BandRun {
    std::size_t first = 0;
    std::size_t end = 0;
    AlignedRows aligned;
};

/// Takes bands from `first` on for as long as the columns of what was taken remain.
BandRun growRun(const std::vector<Band>& bands, std::size_t first, const TableParameters::Tables& parameters) {
    BandRun run{first, first, {}};
    std::vector<PieceRow> rows;
    std::size_t mostGaps = 0;
    for (std::size_t i = first; i < bands.size(); ++i) {
        rows.insert(rows.end(), bands[i].rows.begin(), bands[i].rows.end());
        const std::vector<ColumnGap> gaps = findColumnGaps(rows, parameters);
        const auto kept = static_cast<double>(gaps.size());
        // The first rows, headings among them, may not show the columns yet.
        const bool mayWait = mostGaps == 0 && static_cast<int>(rows.size()) <= parameters.maximumHeaderRows;
        if (!mayWait && (gaps.empty() || kept < parameters.keptGapShare * static_cast<double>(mostGaps)))
            break;
        mostGaps = std::max(mostGaps, gaps.size());
        run.end = i + 1;
    }
    // A heading between two tables, a note below: what stands across all columns at the run's ends is no part of it.
    while (run.end > run.first && isHeadingOnly(bands[run.end - 1]))
        --run.end;
    return run;
}

void alignRun(const std::vector<Band>& bands, const std::vector<Line>& lines, const LayoutParameters& parameters,
              BandRun& run) {
    for (std::size_t i = run.first; i < run.end; ++i)
        run.aligned.rows.insert(run.aligned.rows.end(), bands[i].rows.begin(), bands[i].rows.end());
    run.aligned.gaps = findTableColumns(run.aligned.rows, lines, parameters);
    std::size_t start = 0;
    for (std::size_t i = run.first; i < run.end; ++i) {
        const std::span rows = std::span(run.aligned.rows).subspan(start, bands[i].rows.size());
        for (RowGroup group : groupRows(rows, run.aligned.gaps, lines, parameters.tables))
            run.aligned.groups.push_back({group.first + start, group.end + start});
        start += bands[i].rows.size();
    }
}

Rect boxOf(const AlignedRows& aligned) {
    Rect box;
    for (const PieceRow& row : aligned.rows)
        box = box.united(row.box);
    return box;
}

/// Whether the texts take up most of the rules' length: those of a page's head and foot are longer than the table
/// between them.
bool fillsRules(const BandRun& run, const RuleLevel& level, const TableParameters::Tables& parameters) {
    return boxOf(run.aligned).width() >= parameters.ruleFill * (level.right - level.left);
}

/// The edges that rules draw lie on them, the outer ones too.
void snapToRules(TableGrid& grid, const RuleStack& stack, const std::vector<Band>& bands, const BandRun& run) {
    std::size_t group = 0;
    std::size_t start = 0;
    for (std::size_t i = run.first; i < run.end; ++i) {
        while (group < run.aligned.groups.size() && run.aligned.groups[group].first < start)
            ++group;
        if (!bands[i].rows.empty() && group < run.aligned.groups.size())
            grid.rowEdges[group] = bands[i].top;
        start += bands[i].rows.size();
    }
    grid.rowEdges.back() = bands[run.end - 1].bottom;
    const Rect text = boxOf(run.aligned);
    grid.columnEdges.front() = std::min(text.left, stack[run.first].left);
    grid.columnEdges.back() = std::max(text.right, stack[run.first].right);
}

} // namespace

std::vector<TableGrid> findHalfRuledGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                          const LayoutParameters& parameters) {
    const TableParameters::Tables& limits = parameters.tables;
    const std::vector<TextPiece> pieces = cutIntoPieces(page.lines, limits);
    std::vector<TableGrid> grids;
    for (const RuleStack& stack : findRuleStacks(lines, limits)) {
        const std::vector<Band> bands = bandsOf(stack, pieces, limits);
        for (std::size_t first = 0; first < bands.size();) {
            BandRun run{first, first, {}};
            if (!bands[first].rows.empty() && !isHeadingOnly(bands[first]))
                run = growRun(bands, first, limits);
            bool isTable = false;
            if (run.end > run.first) {
                alignRun(bands, page.lines, parameters, run);
                isTable = fillsRules(run, stack[first], limits) &&
                          judgeAlignedTable(page, run.aligned, AlignedEvidence::Rules, limits) == TableVerdict::Table;
            }
            if (isTable) {
                grids.push_back(gridOf(run.aligned, limits.textMargin));
                snapToRules(grids.back(), stack, bands, run);
            }
            first = isTable ? run.end : first + 1;
        }
    }
    return grids;
}

} // namespace orvane::layout
