#include "layout/tables/RuledTableFinder.h"

#include "layout/tables/RuleLattice.h"
#include "layout/tables/RuledAdmission.h"

namespace orvane::layout {

std::vector<TableGrid> findRuledGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                      const TableParameters::Tables& parameters) {
    std::vector<TableGrid> grids;
    for (const LineGroup& group : groupCrossingLines(lines, parameters)) {
        const auto lattice = buildLattice(lines, group, parameters);
        if (!lattice)
            continue;
        LatticeGrid found = gridOf(*lattice);
        const CellText text = assignWords(page.lines, found.grid, parameters);
        if (judgeRuledTable(page, found.grid, text, {found.forcedCells}, parameters) == TableVerdict::Table)
            grids.push_back(std::move(found.grid));
    }
    return grids;
}

} // namespace orvane::layout
