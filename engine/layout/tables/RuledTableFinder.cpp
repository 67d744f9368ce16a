#include "layout/tables/RuledTableFinder.h"

#include "layout/tables/ColumnParter.h"
#include "layout/tables/RowParter.h"
#include "layout/tables/RuleLattice.h"
#include "layout/tables/RuledAdmission.h"

namespace orvane::layout {
namespace {

bool isTable(const PageText& page, const TableGrid& grid, int forcedCells, const TableParameters::Tables& parameters) {
    const CellText text = assignWords(page.lines, grid, parameters);
    return judgeRuledTable(page, grid, text, {forcedCells}, parameters) == TableVerdict::Table;
}

} // namespace

std::vector<TableGrid> findRuledGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                      const TableParameters::Tables& parameters) {
    std::vector<TableGrid> grids;
    for (const LineGroup& group : groupCrossingLines(lines, parameters)) {
        const auto lattice = buildLattice(lines, group, parameters);
        if (!lattice)
            continue;
        LatticeGrid found = gridOf(*lattice);
        if (!isTable(page, found.grid, found.forcedCells, parameters))
            continue;
        TableGrid parted = partAtTextRows(partAtColumns(found.grid, page.lines, parameters), page.lines, parameters);
        const bool isBetter = parted.cells != found.grid.cells && isTable(page, parted, 0, parameters);
        grids.push_back(isBetter ? std::move(parted) : std::move(found.grid));
    }
    return grids;
}

} // namespace orvane::layout
