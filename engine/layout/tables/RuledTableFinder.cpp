#include "layout/tables/RuledTableFinder.h"

#include "layout/tables/ColumnParter.h"
#include "layout/tables/GroundRows.h"
#include "layout/tables/GridsBeside.h"
#include "layout/tables/NestedGrids.h"
#include "layout/tables/NumberColumns.h"
#include "layout/tables/OpenFields.h"
#include "layout/tables/OpenRows.h"
#include "layout/tables/RowParter.h"
#include "layout/tables/RuleLattice.h"
#include "layout/tables/RuledAdmission.h"

namespace orvane::layout {
namespace {

bool isTable(const PageText& page, const TableGrid& grid, const GridEvidence& evidence,
             const TableParameters::Tables& parameters) {
    const CellText text = assignWords(page.lines, grid, parameters);
    return judgeRuledTable(page, grid, text, evidence, parameters) == TableVerdict::Table;
}

bool hasWords(const PageText& page, const TableGrid& grid, const TableParameters::Tables& parameters) {
    return assignWords(page.lines, grid, parameters).wordCount > 0;
}

} // namespace

std::vector<TableGrid> findRuledGrids(const PageText& page, const std::vector<BorderLine>& drawn,
                                      const TableParameters::Tables& parameters) {
    const std::vector<BorderLine> lines =
        closeOpenFields(closeOpenRows(drawn, page.lines, parameters), page.lines, parameters);
    std::vector<TableGrid> grids;
    for (const LineGroup& group : groupCrossingLines(lines, parameters)) {
        const auto lattice = buildLattice(lines, group, parameters);
        if (!lattice)
            continue;
        LatticeGrid found = gridOf(*lattice);
        std::vector<TableGrid> nested = takeNestedGrids(found, *lattice, page.lines, parameters);
        const bool isFound = isTable(page, found.grid, found.evidence, parameters);
        // Within a cell a few empty fields are a table, too; in a box alone they must be one of their own.
        for (TableGrid& inner : nested)
            if (isFound ? hasWords(page, inner, parameters) : isTable(page, inner, {}, parameters))
                grids.push_back(std::move(inner));
        if (!isFound)
            continue;
        TableGrid parted = partAtColumns(partAtGrounds(found.grid, page, parameters), page.lines, parameters);
        parted = partAtNumbers(parted, page.lines, parameters);
        parted = partAtTextRows(parted, page.lines, parameters);
        const bool isBetter = parted.cells != found.grid.cells && isTable(page, parted, {}, parameters);
        grids.push_back(isBetter ? std::move(parted) : std::move(found.grid));
    }
    return joinBeside(std::move(grids), page.lines);
}

} // namespace orvane::layout
